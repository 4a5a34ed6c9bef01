#pragma once

/// The language of the texts that a user sees. The log is English in both.
enum class Language { English, Italian };

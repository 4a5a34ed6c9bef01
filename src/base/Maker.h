#pragma once

/// The maker's addresses, all in one place.
namespace Maker {
inline constexpr char WebSiteHost[] = "www.calvessa.example";
} // namespace Maker

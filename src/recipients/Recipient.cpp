#include "recipients/Recipient.h"

#include <array>

namespace {

struct Word
{
    RowState state = RowState::Waiting;
    QLatin1String english;
    QLatin1String italian;
};

// A table and not a catalogue: files of both languages are read whatever the window's language.
constexpr std::array Words{
    Word{RowState::Waiting, QLatin1String("Waiting"), QLatin1String("Attesa")},
    Word{RowState::Sending, QLatin1String("Sending..."), QLatin1String("Invio...")},
    Word{RowState::Sent, QLatin1String("Sent"), QLatin1String("Inviato")},
    Word{RowState::NotSent, QLatin1String("Not sent"), QLatin1String("Non inviato")},
    Word{RowState::Error, QLatin1String("Error!"), QLatin1String("Errore!")},
};

} // namespace

QString stateWord(RowState state, Language language)
{
    // Made once: the words are set for every message of a run.
    static const auto made = [] {
        std::array<std::array<QString, 2>, Words.size()> texts;
        for (const Word &word : Words)
            texts[static_cast<std::size_t>(word.state)] = {word.english, word.italian};
        return texts;
    }();
    return made[static_cast<std::size_t>(state)][language == Language::Italian ? 1 : 0];
}

RowState stateAfter(Outcome outcome)
{
    switch (outcome) {
    case Outcome::None:
    case Outcome::NotTaken:
        break;
    case Outcome::InFlight:
    case Outcome::InDoubt:
        return RowState::Sending;
    case Outcome::Sent:
        return RowState::Sent;
    case Outcome::Refused:
        return RowState::Error;
    }
    return RowState::Waiting;
}

std::optional<RowState> stateOfWord(const QString &word)
{
    for (const Word &known : Words) {
        if (word == known.english || word == known.italian)
            return known.state;
    }
    return std::nullopt;
}

RowState stateOf(const Recipient &row)
{
    return stateOfWord(row.state).value_or(RowState::Waiting);
}

bool mayHaveTheMessage(const Recipient &row)
{
    const RowState state = stateOf(row);
    return state == RowState::Sent || state == RowState::Sending;
}

bool isRefused(const Recipient &row)
{
    return stateOf(row) == RowState::Error;
}

bool isInDoubt(const Recipient &row)
{
    return stateOf(row) == RowState::Sending && row.attempt.outcome != Outcome::InFlight;
}

bool isRefusedForNow(const Recipient &row)
{
    return stateOf(row) == RowState::Error && row.attempt.reply.isForNow();
}

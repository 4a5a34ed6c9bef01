#include "addressbook/ContactCheck.h"

#include "base/modMain.h"

namespace {

Notice critical(Language language, const char *title, const char *text)
{
    constexpr auto Context = "ContactCheck";
    return {Icon::Critical, textIn(language, Context, title), textIn(language, Context, text)};
}

} // namespace

std::optional<Notice> refusalOf(const Contact &contact, Language language)
{
    const QString &address = contact[ContactColumn::Email];
    const bool isNameless =
        contact[ContactColumn::Name].isEmpty() && contact[ContactColumn::Company].isEmpty();
    if (isNameless || address.isEmpty()) {
        return critical(
            language, QT_TRANSLATE_NOOP("ContactCheck", "Error"),
            QT_TRANSLATE_NOOP("ContactCheck",
                              "You must fill 'Name' or 'Company' fields and 'E-Mail' field."));
    }
    if (!IsValidEmail(address)) {
        return critical(
            language, QT_TRANSLATE_NOOP("ContactCheck", "E-Mail"),
            QT_TRANSLATE_NOOP("ContactCheck", "The specified e-mail address isn't valid."));
    }
    return std::nullopt;
}

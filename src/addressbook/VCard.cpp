#include "addressbook/VCard.h"

#include "addressbook/VCardLines.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>

namespace {

/// Those of the components that have a text, in that order.
QStringList filled(const QStringList &components, std::initializer_list<int> order)
{
    QStringList texts;
    for (const int place : order) {
        if (const QString text = components.value(place); !text.isEmpty())
            texts += text;
    }
    return texts;
}

/// The value of an URI of that scheme, or the text, which is none.
QString withoutScheme(const QString &text, QLatin1String scheme)
{
    return text.startsWith(scheme, Qt::CaseInsensitive) ? text.mid(scheme.size()).trimmed() : text;
}

/// A card while its properties come in.
class Card
{
public:
    explicit Card(const CodePage &codePage) : m_codePage(codePage) {}

    void take(const VCardProperty &property);
    [[nodiscard]] ForeignContact contact() const;

private:
    void loseLine();
    void takeName(const VCardProperty &property);
    void takeOrganisation(const VCardProperty &property);
    void takePostalAddress(const VCardProperty &property);
    void takeTelephone(const VCardProperty &property);
    void takeIfFirst(QString &place, const QString &text);

    const CodePage &m_codePage;
    ForeignContact m_contact;
    QString m_formattedName;
    QString m_structuredName;
    QStringList m_notes;
    bool m_isLosing = false; ///< the line before was left out
    std::optional<int> m_preferenceOfPostalAddress;
};

void Card::take(const VCardProperty &property)
{
    static constexpr std::array Unimportant{"BEGIN", "END", "VERSION", "PRODID", "REV", "UID"};
    const QByteArray &name = property.name();
    if (property.isBroken())
        loseLine();
    if (!property.hasContent())
        return;
    const int before = m_contact.fieldsLeftOut;
    if (name == "FN")
        takeIfFirst(m_formattedName, property.text(m_codePage));
    else if (name == "N")
        takeName(property);
    else if (name == "ORG")
        takeOrganisation(property);
    else if (name == "EMAIL")
        m_contact.addresses += withoutScheme(property.text(m_codePage), QLatin1String("mailto:"));
    else if (name == "ADR")
        takePostalAddress(property);
    else if (name == "TEL")
        takeTelephone(property);
    else if (name == "NOTE")
        m_notes += property.text(m_codePage);
    else if (std::find(Unimportant.begin(), Unimportant.end(), name) == Unimportant.end())
        ++m_contact.fieldsLeftOut;
    m_isLosing = m_contact.fieldsLeftOut > before;
}

// The lines of a picture or a note whose folds are missing are one piece of information.
void Card::loseLine()
{
    if (!m_isLosing)
        ++m_contact.fieldsLeftOut;
    m_isLosing = true;
}

void Card::takeName(const VCardProperty &property)
{
    enum Component { Family, Given, Middle, Prefix, Suffix };
    m_structuredName =
        filled(property.components(m_codePage), {Prefix, Given, Middle, Family, Suffix}).join(u' ');
}

void Card::takeOrganisation(const VCardProperty &property)
{
    const QStringList components = property.components(m_codePage);
    takeIfFirst(m_contact.fields[ContactColumn::Company], components.front());
    m_contact.fieldsLeftOut +=
        static_cast<int>(std::count_if(components.begin() + 1, components.end(),
                                       [](const QString &unit) { return !unit.isEmpty(); }));
}

void Card::takePostalAddress(const VCardProperty &property)
{
    enum Component { PostOfficeBox, Extended, Street, Locality, Region, PostCode, Country };
    if (m_preferenceOfPostalAddress)
        ++m_contact.fieldsLeftOut;
    const int preference = property.preference();
    if (m_preferenceOfPostalAddress && *m_preferenceOfPostalAddress <= preference)
        return;
    m_preferenceOfPostalAddress = preference;
    const QStringList components = property.components(m_codePage);
    Contact &fields = m_contact.fields;
    fields[ContactColumn::Address] =
        filled(components, {Street, Extended, PostOfficeBox}).join(QLatin1String(", "));
    fields[ContactColumn::City] = components.value(Locality);
    fields[ContactColumn::State] = components.value(Region);
    fields[ContactColumn::PostCode] = components.value(PostCode);
    fields[ContactColumn::Country] = components.value(Country);
}

void Card::takeTelephone(const VCardProperty &property)
{
    ContactColumn column = ContactColumn::Telephone;
    if (property.has("TYPE", "PAGER")) {
        ++m_contact.fieldsLeftOut;
        return;
    }
    if (property.has("TYPE", "FAX"))
        column = ContactColumn::Fax;
    else if (property.has("TYPE", "CELL"))
        column = ContactColumn::Mobile;
    takeIfFirst(m_contact.fields[column],
                withoutScheme(property.text(m_codePage), QLatin1String("tel:")));
}

void Card::takeIfFirst(QString &place, const QString &text)
{
    if (place.isEmpty())
        place = text;
    else if (!text.isEmpty())
        ++m_contact.fieldsLeftOut;
}

ForeignContact Card::contact() const
{
    ForeignContact contact = m_contact;
    const QString &name = m_formattedName.isEmpty() ? m_structuredName : m_formattedName;
    // The card of a company tells its name twice.
    if (name != contact.fields[ContactColumn::Company])
        contact.fields[ContactColumn::Name] = name;
    contact.fields[ContactColumn::Notes] = m_notes.join(QLatin1String("\r\n"));
    contact.addresses.removeDuplicates();
    if (contact.addresses.isEmpty())
        contact.addresses.append(QString());
    return contact;
}

} // namespace

bool isVCard(QByteArrayView content)
{
    const QByteArrayView text = content.trimmed();
    const auto end =
        std::find_if(text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; });
    return VCardProperty(text.first(end - text.begin()).toByteArray()).delimitsCard("BEGIN");
}

std::vector<ForeignContact> readVCards(QByteArrayView content, const CodePage &codePage)
{
    std::vector<ForeignContact> contacts;
    std::optional<Card> card;
    // In the 2.1 format the card of an agent stands within the card of whom it acts for.
    bool agentFollows = false;
    int depthInAgent = 0;
    const auto finish = [&] {
        if (card)
            contacts.push_back(card->contact());
        card.reset();
    };
    VCardLines lines(content);
    while (const std::optional<QByteArray> line = lines.next()) {
        const VCardProperty property(*line);
        if (property.delimitsCard("BEGIN")) {
            if (agentFollows || depthInAgent > 0) {
                ++depthInAgent;
            } else {
                finish();
                card.emplace(codePage);
            }
        } else if (property.delimitsCard("END")) {
            if (depthInAgent > 0)
                --depthInAgent;
            else
                finish();
        } else if (card && depthInAgent == 0) {
            card->take(property);
        }
        if (!line->trimmed().isEmpty())
            agentFollows = card && property.name() == "AGENT" && !property.hasContent();
    }
    finish();
    return contacts;
}

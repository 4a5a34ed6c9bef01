#pragma once

#include <QDateTime>
#include <QString>

/// The user's regional formats, handed in so that no machine's locale matters to a test.
class RegionalFormats
{
public:
    RegionalFormats() = default;
    RegionalFormats(const RegionalFormats &) = delete;
    RegionalFormats &operator=(const RegionalFormats &) = delete;
    virtual ~RegionalFormats() = default;

    [[nodiscard]] virtual QString shortDate(const QDateTime &moment) const = 0;
    [[nodiscard]] virtual QString longTime(const QDateTime &moment) const = 0;
    [[nodiscard]] virtual QChar decimalSign() const = 0;
};

/// The formats of the user's locale; dd/mm/yyyy and hh:mm:ss in the C locale.
class SystemFormats final : public RegionalFormats
{
public:
    SystemFormats();

    [[nodiscard]] QString shortDate(const QDateTime &moment) const override;
    [[nodiscard]] QString longTime(const QDateTime &moment) const override;
    [[nodiscard]] QChar decimalSign() const override { return m_decimalSign; }

private:
    bool m_isPlain = true;
    QChar m_decimalSign = u'.';
};

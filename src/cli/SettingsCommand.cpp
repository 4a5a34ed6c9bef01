#include "cli/SettingsCommand.h"

#include "base/Numbers.h"
#include "base/modMain.h"
#include "settings/IOReg.h"
#include "settings/Settings.h"

namespace {

QString textOf(std::string_view text)
{
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

class SettingsTable
{
public:
    explicit SettingsTable(const CliSurroundings &from) : m_from(from), m_reg(from.settings)
    {
        m_reg.Init(CurrentUserRoot, Settings::Folder);
    }

    QString read(const Settings::Setting &setting)
    {
        const std::string name(setting.name);
        if (setting.kind == ValueKind::Integer) {
            std::int32_t value = 0;
            if (setting.whenAbsent == Settings::WhenAbsent::Receipt)
                m_reg.ReadInt(Settings::Ricevuta, value);
            m_reg.ReadInt(name, value);
            return QString::number(value);
        }
        std::string value;
        m_reg.ReadStr(name, value);
        if (!value.empty())
            return m_from.codePage.decode(value);
        const QString absent = textOf(setting.absentText);
        return setting.whenAbsent == Settings::WhenAbsent::ProgramFolder
                   ? joinPath(m_from.programFolder, absent.mid(1))
                   : absent;
    }

    bool write(const Settings::Setting &setting, const QString &value)
    {
        const std::string name(setting.name);
        if (setting.kind == ValueKind::Text)
            return m_reg.WriteStr(name, m_from.codePage.encode(value).toStdString()) == 0;
        const auto number = toNumber<std::int32_t>(value);
        return number && m_reg.WriteInt(name, *number) == 0;
    }

private:
    const CliSurroundings &m_from;
    IOReg m_reg;
};

} // namespace

ExitCode settings(const SettingsOptions &options, const CliSurroundings &from)
{
    SettingsTable table(from);
    if (!options.name) {
        for (const Settings::Setting &setting : Settings::All)
            from.output.result(textOf(setting.name) + u'=' + table.read(setting));
        return ExitCode::Success;
    }
    const Settings::Setting *setting = Settings::find(options.name->toStdString());
    if (setting == nullptr) {
        from.output.message(QStringLiteral("There is no setting \"%1\".").arg(*options.name));
        return ExitCode::Refused;
    }
    if (!options.value) {
        from.output.result(table.read(*setting));
        return ExitCode::Success;
    }
    if (!table.write(*setting, *options.value)) {
        from.output.message(
            QStringLiteral("\"%1\" cannot be set to \"%2\".").arg(*options.name, *options.value));
        return ExitCode::Refused;
    }
    return ExitCode::Success;
}

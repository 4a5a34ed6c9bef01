#include "recipients/RecipientsFile.h"

#include "base/Files.h"
#include "base/Lines.h"
#include "base/modMain.h"

namespace {

// Stricter than an address typed by hand: nothing is trimmed, and a space before a comment or
// behind a ";" would become part of the address.
bool canBeImported(const QString &address)
{
    return IsValidEmail(address) && !address.contains(u' ');
}

} // namespace

RecipientsText readRecipientsText(QStringView text, const QString &waitingWord)
{
    RecipientsText result;
    LineReader lines(text);
    while (const auto line = lines.next()) {
        const qsizetype nameEnd = line->indexOf(u';');
        const bool oneTooMany = result.rows.size() == MostImportedRows;
        if (nameEnd < 0 || oneTooMany) {
            result.complete = false;
            break;
        }
        QStringView address = line->sliced(nameEnd + 1);
        if (const qsizetype end = address.indexOf(u';'); end >= 0)
            address = address.first(end);
        if (const qsizetype comment = address.indexOf(u'#'); comment >= 0)
            address = address.first(comment);
        Recipient row;
        row.name = line->first(nameEnd).toString();
        row.address = address.toString();
        if (!canBeImported(row.address)) {
            result.rejected +=
                row.name + QLatin1String(" - ") + row.address + QLatin1String("\r\n");
            continue;
        }
        row.number = QString::number(result.rows.size() + 1);
        row.state = waitingWord;
        result.rows.push_back(std::move(row));
    }
    return result;
}

RecipientsFile::RecipientsFile(Form &form, RecipientList &list, Prompts &prompts, CLog &AppLog,
                               const CodePage &codePage, const QString &programFolder)
    : m_form(form),
      m_list(list),
      m_prompts(prompts),
      m_AppLog(AppLog),
      m_codePage(codePage),
      m_programFolder(programFolder)
{}

void RecipientsFile::cmdDestinatari_Click()
{
    FileDialog dialog;
    dialog.title = tr("Select recipients file:");
    dialog.filter = tr("Text file (*.txt)|*.txt|All files (*.*)|*.*");
    dialog.defaultExtension = QStringLiteral("txt");
    const auto stands = [this, project = m_form.situation().project] {
        return m_form.situation().project == project && m_form.isEnabled(Control::cmdDestinatari);
    };
    m_prompts.askFile(dialog, stands, [this](const QString &name) {
        if (!name.isEmpty())
            use(name);
    });
}

void RecipientsFile::SetRecipientsFile(const QString &name)
{
    use(ResolveProgramPath(name, m_programFolder));
}

void RecipientsFile::use(const QString &recipientsFilePath)
{
    constexpr qint16 ShownWidth = 60;
    m_form.setTag(Control::txtDestinatari, recipientsFilePath);
    m_form.setText(Control::txtDestinatari, Wrap(recipientsFilePath, ShownWidth));
    m_form.setProjectModified(true);
    ImportRecipientsFile();
}

void RecipientsFile::ImportRecipientsFile()
{
    const QString recipientsFilePath = m_form.tag(Control::txtDestinatari);
    RecipientsText read;
    QString reason = tr("a line without \";\", or more than %1 recipients").arg(MostImportedRows);
    if (const auto content = readWholeFile(recipientsFilePath)) {
        read = readRecipientsText(m_codePage.decode(*content),
                                  stateWord(RowState::Waiting, m_form.language()));
    } else {
        read.complete = false;
        reason = content.error().reason;
    }
    // What was read before a failure stays.
    m_list.replaceAll(std::move(read.rows));
    m_list.sort(Column::Name, Qt::AscendingOrder);
    if (!read.complete) {
        m_prompts.notice({Icon::Critical, tr("Recipients"),
                          tr("Unable to load the specified list of recipients!"),
                          FileError{recipientsFilePath, reason}.toText()});
        return;
    }
    if (!read.rejected.isEmpty()) {
        m_prompts.notice(
            {Icon::None, QStringLiteral("Sorvanta"),
             tr("These recipients couldn't be added:") + QLatin1String("\r\n") + read.rejected});
    }
    m_AppLog.WriteMessage(QLatin1String("Recipients file '") + recipientsFilePath +
                          QLatin1String("' loaded"));
}

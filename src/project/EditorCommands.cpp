#include "project/EditorCommands.h"

#include "base/modMain.h"

#include <QUrl>

namespace {

// The start of the command that is a program: the longest, since the paths of programs may hold
// blanks. Empty when there is none.
QString programOf(const QString &command, const Shell &shell)
{
    for (qsizetype end = command.size(); end > 0; end = command.lastIndexOf(u' ', end - 1)) {
        const QString start = command.first(end);
        if (shell.isProgram(start))
            return start;
    }
    return {};
}

// The editors that the settings name as long as the user has chosen none.
bool isDefaultEditor(const QString &command)
{
    const QString name = fileNameOf(command);
    return name == QLatin1String("notepad.exe") || name == QLatin1String("htmledit.exe");
}

} // namespace

EditorCommands::EditorCommands(Form &form, MessageFiles &files, const WindowSettings &settings,
                               Prompts &prompts, Shell &shell)
    : m_form(form), m_files(files), m_settings(settings), m_prompts(prompts), m_shell(shell)
{}

// The filters for new files are Italian in both languages.
void EditorCommands::cmdPreviewTXT_Click()
{
    edit(Control::txtEmail, QStringLiteral("File di testo (*.txt)|*.txt"),
         m_settings.TXTEditorPath);
}

void EditorCommands::cmdPreviewHTML_Click()
{
    edit(Control::txtHTML, QStringLiteral("File HTML (*.htm; *.html)|*.htm;*.html"),
         m_settings.HTMLEditorPath);
}

void EditorCommands::edit(Control box, const QString &newFilter, const QString &editor)
{
    if (!m_form.text(box).isEmpty()) {
        start(editor, m_form.tag(box));
        return;
    }
    m_files.NewMessageFile(newFilter, [this, box, editor](const QString &path) {
        if (path.isEmpty()) {
            m_form.setTag(box, {});
            return;
        }
        m_files.use(box, path);
        start(editor, path);
    });
}

void EditorCommands::start(const QString &editor, const QString &path)
{
    const QString program = programOf(editor, m_shell);
    if (program.isEmpty() && isDefaultEditor(editor)) {
        m_shell.open(QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded));
        return;
    }
    // The path is not quoted: one with blanks reaches the editor in pieces, as it always has.
    const QString rest = editor.sliced(program.size()) + u' ' + path;
    if (program.isEmpty() || !m_shell.start(program, rest.split(u' ', Qt::SkipEmptyParts)))
        m_prompts.notice(
            {Icon::Critical, tr("Error"), tr("The editor cannot be started: %1").arg(editor)});
}

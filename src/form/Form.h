#pragma once

#include "base/Language.h"
#include "form/Controls.h"
#include "form/RunState.h"

#include <QObject>
#include <QString>

#include <vector>

/// Which project and which run a result or an answer belongs to. A stale one changes nothing.
struct Situation
{
    quint32 project = 0; ///< changes when the project is replaced
    quint32 run = 0;     ///< changes when a run starts or ends

    bool operator==(const Situation &) const = default;
};

/// What the main window shows, without a window: the texts, tags and checks of its controls, the
/// flag of unsaved changes, and where the run stands. A window is a view of it.
class Form : public QObject
{
    Q_OBJECT

public:
    explicit Form(Language language, QObject *parent = nullptr);

    [[nodiscard]] Language language() const { return m_language; }

    [[nodiscard]] QString text(Control control) const { return at(control).text; }
    /// A change of a text that the user edits marks the project as modified.
    void setText(Control control, const QString &text);
    /// The tag of cmdPausa is its mode word, which follows from the run state.
    [[nodiscard]] QString tag(Control control) const;
    void setTag(Control control, const QString &tag);
    [[nodiscard]] bool isChecked(Control control) const { return at(control).checked; }
    /// A change of chkRicevuta marks the project as modified; one of chkMultiSend does not.
    void setChecked(Control control, bool checked);

    /// The window's caption.
    [[nodiscard]] QString caption() const { return m_caption; }
    void setCaption(const QString &caption);

    [[nodiscard]] bool projectModified() const { return m_projectModified; }
    void setProjectModified(bool modified) { m_projectModified = modified; }
    /// The open project file; empty when the project has no name yet.
    [[nodiscard]] QString projectPath() const { return m_projectPath; }
    void setProjectPath(const QString &path) { m_projectPath = path; }

    [[nodiscard]] RunState runState() const { return m_runState; }
    /// The one place where the state changes; the reason goes to the trace "sorvanta.run".
    void setRunState(RunState state, const char *reason);
    [[nodiscard]] bool isEnabled(Control control) const { return ::isEnabled(control, m_runState); }

    [[nodiscard]] Situation situation() const { return m_situation; }
    void countProjectReplaced();
    void countRunChanged();

Q_SIGNALS:
    void changed(Control control);
    void captionChanged();
    void runStateChanged(RunState state);
    void situationChanged();

private:
    struct Content
    {
        QString text;
        QString tag;
        bool checked = false;
    };

    [[nodiscard]] const Content &at(Control control) const
    {
        return m_contents[static_cast<std::size_t>(control)];
    }
    [[nodiscard]] Content &at(Control control)
    {
        return m_contents[static_cast<std::size_t>(control)];
    }

    Language m_language;
    std::vector<Content> m_contents;
    QString m_caption;
    bool m_projectModified = false;
    QString m_projectPath;
    RunState m_runState = RunState::Idle;
    Situation m_situation;
};

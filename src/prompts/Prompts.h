#pragma once

#include <QString>
#include <QStringList>

#include <functional>

/// The icon of a message box.
enum class Icon { None, Information, Exclamation, Critical };

/// A message box with an OK button. Nothing waits for it.
struct Notice
{
    Icon icon = Icon::None;
    QString title;
    QString text;
    /// The path and the reason behind it, where the text does not say them; not part of the box's
    /// text.
    QString detail = {};
};

/// What a question is about. The text is for people; programs that answer go by this.
enum class Topic {
    SaveBeforeNew,
    SaveBeforeOpen,
    SaveBeforeStart,
    SaveBeforeExit,
    LinkedImages,
    StopProcedure,
    TrustCertificate,
    InterruptedRun,
    DeleteContacts,
    DeleteBook,
};

enum class Buttons {
    YesNo,
    YesNoCancel,
    OkCancel,
    ContinueOpenForget, ///< what to do with a run that was interrupted; closing the box is Cancel
    OpenForget,         ///< the same when nothing is left to go on with
};
enum class Answer { Yes, No, Cancel, Ok, Continue, OpenAsItIs, Forget };

/// A message box whose answer decides what comes next.
struct Question
{
    Topic topic = Topic::SaveBeforeNew;
    Icon icon = Icon::Exclamation;
    Buttons buttons = Buttons::YesNo;
    QString title;
    QString text;
    /// Enter is Yes, or No where nobody should agree without having read it.
    bool enterIsNo = false;
};

/// A box for one line of text.
struct InputBox
{
    QString title;
    QString prompt;
};

/// The system's dialog for the name of a file to open or to save.
struct FileDialog
{
    enum class Kind { Open, Save };

    Kind kind = Kind::Open;
    QString title;
    /// Descriptions and patterns in turn, separated by "|".
    QString filter;
    QString defaultExtension;
    /// Where the dialog opens; empty: where it last was.
    QString initialFolder;
    /// The name that the dialog proposes.
    QString initialName = {};
    bool asksBeforeOverwriting = false;
};

/// Says whether the answer of an open box still counts.
using Stands = std::function<bool()>;

/// The boxes of the program as values. A notice is put in a queue and shown in its turn. A box
/// with an answer takes a condition, checked when the answer comes, and a continuation; answers
/// are posted, never given from inside the call. When the condition no longer holds, the
/// continuation is not called.
class Prompts
{
public:
    Prompts() = default;
    Prompts(const Prompts &) = delete;
    Prompts &operator=(const Prompts &) = delete;
    virtual ~Prompts() = default;

    virtual void notice(const Notice &notice) = 0;
    virtual void ask(const Question &question, Stands stands, std::function<void(Answer)> then) = 0;
    /// An empty text is Cancel.
    virtual void askText(const InputBox &box, Stands stands, std::function<void(QString)> then) = 0;
    /// An empty name is Cancel.
    virtual void askFile(const FileDialog &dialog, Stands stands,
                         std::function<void(QString)> then) = 0;
};

#include "ui/WindowPrompts.h"

#include "base/Lines.h"

#include "ui/FileBox.h"
#include "ui/MessageBox.h"
#include "ui/frmAccesso.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QMenu>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// A box or a menu that this box shows from an event loop of its own.
QWidget *innerWindowOf(const QDialog *box)
{
    for (QDialog *inner : box->findChildren<QDialog *>()) {
        if (inner->isVisible())
            return inner;
    }
    for (QMenu *inner : box->findChildren<QMenu *>()) {
        if (inner->isVisible())
            return inner;
    }
    return nullptr;
}

} // namespace

WindowPrompts::WindowPrompts(QObject *parent) : QObject(parent) {}

WindowPrompts::~WindowPrompts()
{
    for (const Open &open : std::vector(m_open)) {
        if (open.box)
            discard(open.box);
    }
}

void WindowPrompts::setWindow(QWidget *window)
{
    // The window is often still being made.
    QMetaObject::invokeMethod(
        this,
        [this, window = QPointer(window)] {
            m_window = window;
            openWaiting();
        },
        Qt::QueuedConnection);
}

void WindowPrompts::notice(const Notice &notice)
{
    const auto make = [notice](QWidget *window) -> QDialog * {
        auto *box = new MessageBox(notice, window);
        box->setObjectName("notice"_L1);
        return box;
    };
    enqueue({make, [] { return true; }, Kind::Notice});
}

void WindowPrompts::ask(const Question &question, Stands stands, std::function<void(Answer)> then)
{
    const auto make = [this, question, stands,
                       then = std::move(then)](QWidget *window) -> QDialog * {
        auto *box = new MessageBox(question, window);
        box->setObjectName("question"_L1);
        connect(box, &QDialog::finished, this, [this, box, stands, then] {
            post(stands, [then, answer = box->answer()] { then(answer); });
        });
        return box;
    };
    enqueue({make, stands});
}

void WindowPrompts::askText(const InputBox &box, Stands stands, std::function<void(QString)> then)
{
    const auto make = [this, box, stands, then = std::move(then)](QWidget *window) -> QDialog * {
        auto *input = new QInputDialog(window);
        input->setObjectName("inputBox"_L1);
        input->setWindowTitle(box.title);
        input->setLabelText(box.prompt);
        input->setInputMode(QInputDialog::TextInput);
        for (QLabel *label : input->findChildren<QLabel *>())
            label->setTextFormat(Qt::PlainText);
        // Names and addresses are longer than Qt thinks.
        input->resize(input->sizeHint().expandedTo({400, 0}));
        connect(input, &QDialog::finished, this, [this, input, stands, then](int result) {
            const QString text =
                result == QDialog::Accepted ? oneLine(input->textValue()) : QString();
            post(stands, [then, text] { then(text); });
        });
        return input;
    };
    enqueue({make, stands});
}

void WindowPrompts::askFile(const FileDialog &dialog, Stands stands,
                            std::function<void(QString)> then)
{
    const auto make = [this, dialog, stands, then = std::move(then)](QWidget *window) -> QDialog * {
        auto *box = newFileBox(dialog, folderFor(dialog), m_dialogs == Dialogs::Native, window);
        box->setObjectName("fileDialog"_L1);
        connect(box, &QDialog::finished, this, [this, box, stands, then](int result) {
            QString name;
            if (result == QDialog::Accepted && !box->selectedFiles().isEmpty()) {
                const QFileInfo file(box->selectedFiles().constFirst());
                m_lastFolder = file.absolutePath();
                name = QDir::toNativeSeparators(file.absoluteFilePath());
            }
            post(stands, [then, name] { then(name); });
        });
        return box;
    };
    enqueue({make, stands});
}

void WindowPrompts::askLogin(const LoginBox &box, Stands stands,
                             std::function<void(std::optional<LoginEntry>)> then)
{
    const auto make = [this, box, stands, then = std::move(then)](QWidget *window) -> QDialog * {
        auto *login = new frmAccesso(box, window);
        connect(login, &QDialog::finished, this, [this, login, stands, then](int result) {
            std::optional<LoginEntry> entry = login->takeEntry();
            if (result != QDialog::Accepted)
                entry.reset();
            post(stands, [then, entry] { then(entry); });
        });
        return login;
    };
    enqueue({make, stands, Kind::AskingBeside});
}

void WindowPrompts::enqueue(Waiting waiting)
{
    m_waiting.push_back(std::move(waiting));
    openWaiting();
}

// Everything opens in the order in which it came, and nothing while a notice is shown. A notice
// does not mind other boxes.
void WindowPrompts::openWaiting()
{
    while (m_window && !m_waiting.empty() && !noticeIsOpen()) {
        const Waiting next = std::move(m_waiting.front());
        m_waiting.pop_front();
        if (next.stands())
            open(next);
    }
}

void WindowPrompts::open(const Waiting &waiting)
{
    // What blocks nothing must not go away with a dialog that does.
    QDialog *box =
        waiting.make(waiting.kind == Kind::AskingBeside ? m_window.data() : windowInFront());
    m_open.push_back({box, waiting.stands, waiting.kind});
    connect(box, &QDialog::finished, this, [this, box] {
        forget(box);
        box->deleteLater();
        openWaiting();
        activateLast();
    });
    if (waiting.kind == Kind::AskingBeside)
        box->show();
    else
        box->open();
}

// A dialog that blocks the window lies over it.
QWidget *WindowPrompts::windowInFront() const
{
    const auto isBox = [this](const QDialog *dialog) {
        return std::any_of(m_open.begin(), m_open.end(),
                           [dialog](const Open &open) { return open.box == dialog; });
    };
    QWidget *front = m_window;
    for (QWidget *next = front; next != nullptr;) {
        front = std::exchange(next, nullptr);
        for (QDialog *dialog :
             front->findChildren<QDialog *>(QString(), Qt::FindDirectChildrenOnly)) {
            if (dialog->isVisible() && dialog->isModal() && !isBox(dialog))
                next = dialog;
        }
    }
    return front;
}

bool WindowPrompts::noticeIsOpen() const
{
    return std::any_of(m_open.begin(), m_open.end(),
                       [](const Open &open) { return open.kind == Kind::Notice && open.box; });
}

// Also boxes that went away with their window.
void WindowPrompts::forget(const QDialog *box)
{
    std::erase_if(m_open, [box](const Open &open) { return !open.box || open.box == box; });
}

void WindowPrompts::closeStale()
{
    std::erase_if(m_waiting, [](const Waiting &waiting) { return !waiting.stands(); });
    for (const Open &open : std::vector(m_open)) {
        if (open.box && !open.stands())
            discard(open.box);
    }
}

/// Closes a box without an answer.
void WindowPrompts::discard(QDialog *box)
{
    forget(box);
    // A desktop's dialog may answer late.
    box->disconnect(this);
    box->hide();
    // Qt's file dialog asks whether to overwrite from an event loop of its own; it must still be
    // there when that loop comes back.
    if (QWidget *inner = innerWindowOf(box)) {
        connect(inner, &QObject::destroyed, box, &QObject::deleteLater);
        inner->close();
    } else {
        box->deleteLater();
    }
    activateLast();
}

// Window managers give the keys back to the window, which boxes that are left still block.
void WindowPrompts::activateLast()
{
    if (!m_open.empty() && m_open.back().box)
        m_open.back().box->activateWindow();
}

void WindowPrompts::post(const Stands &stands, std::function<void()> then)
{
    QMetaObject::invokeMethod(
        this,
        [stands, then = std::move(then)] {
            if (stands())
                then();
        },
        Qt::QueuedConnection);
}

QString WindowPrompts::folderFor(const FileDialog &dialog) const
{
    const QString &wanted = dialog.initialFolder.isEmpty() ? m_lastFolder : dialog.initialFolder;
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString &folder : {wanted, documents}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir())
            return folder;
    }
    return QDir::homePath();
}

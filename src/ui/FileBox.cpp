#include "ui/FileBox.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace {

/// "*.htm; *.html" as "*.htm *.html *.HTM *.HTML".
QString patterns(const QString &list)
{
    QStringList result;
    for (const QString &pattern : list.split(u';', Qt::SkipEmptyParts))
        // The old name for every file asks Qt for a dot.
        result.append(pattern.trimmed() == "*.*"_L1 ? u"*"_s : pattern.trimmed());
    // The dialogs of some desktops tell small from capital letters.
    for (const QString &pattern : QStringList(result))
        result.append(pattern.toUpper());
    result.removeDuplicates();
    return result.join(u' ');
}

/// Qt would give the suffix to every name that has none, and no longer find the file "README".
/// Here only a name gets it that is not there without.
void completeNamesOfFiles(QFileDialog *box, const QString &suffix)
{
    const auto *edit = box->findChild<QLineEdit *>(u"fileNameEdit"_s);
    // The desktop's dialog knows for itself.
    if (edit == nullptr)
        return;
    QObject::connect(edit, &QLineEdit::textChanged, box, [box, suffix] {
        box->setDefaultSuffix({});
        const QString name = box->selectedFiles().value(0);
        const bool isThere = QFileInfo(name).isFile();
        const bool isThereWithSuffix = QFileInfo(name + u'.' + suffix).isFile();
        if (!isThere && isThereWithSuffix)
            box->setDefaultSuffix(suffix);
        // Qt has looked already, with the suffix of the text before.
        if (isThere || isThereWithSuffix)
            box->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Open)->setEnabled(true);
    });
}

} // namespace

QStringList nameFilters(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        result.append(parts.at(i) + " ("_L1 + patterns(parts.at(i + 1)) + u')');
    return result;
}

QFileDialog *newFileBox(const FileDialog &dialog, const QString &folder, bool desktopsOwn,
                        QWidget *window)
{
    const bool saves = dialog.kind == FileDialog::Kind::Save;
    auto *box = new QFileDialog(window, dialog.title, folder);
    box->setOption(QFileDialog::DontUseNativeDialog, !desktopsOwn);
    box->setOption(QFileDialog::DontConfirmOverwrite, !dialog.asksBeforeOverwriting);
    // The descriptions say the patterns already.
    box->setOption(QFileDialog::HideNameFilterDetails);
    box->setSupportedSchemes({u"file"_s});
    box->setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    box->setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    box->setNameFilters(nameFilters(dialog.filter));
    if (!dialog.defaultExtension.isEmpty() && dialog.defaultExtension != u'*') {
        if (saves)
            box->setDefaultSuffix(dialog.defaultExtension);
        else
            completeNamesOfFiles(box, dialog.defaultExtension);
    }
    if (!dialog.initialName.isEmpty())
        box->selectFile(dialog.initialName);
    return box;
}

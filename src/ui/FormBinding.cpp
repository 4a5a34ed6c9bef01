#include "ui/FormBinding.h"

#include "base/Lines.h"

#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

FormBinding::FormBinding(Form &form, const QWidget &window)
    : m_form(form), m_objects(static_cast<std::size_t>(Controls::count()))
{
    const auto names = QMetaEnum::fromType<Control>();
    for (int place = 0; place < names.keyCount(); ++place) {
        auto *const object = window.findChild<QObject *>(QLatin1String(names.key(place)));
        Q_ASSERT_X(object, "FormBinding", names.key(place));
        m_objects[static_cast<std::size_t>(place)] = object;
        bind(static_cast<Control>(place));
        show(static_cast<Control>(place));
    }
    connect(&form, &Form::changed, this, &FormBinding::show);
    connect(&form, &Form::runStateChanged, this, &FormBinding::applyRunState);
}

void FormBinding::bind(Control control)
{
    if (auto *const edit = qobject_cast<QLineEdit *>(objectOf(control))) {
        connect(edit, &QLineEdit::textEdited, this,
                [this, control](const QString &text) { m_form.setText(control, oneLine(text)); });
    } else if (auto *const box = qobject_cast<QCheckBox *>(objectOf(control))) {
        connect(box, &QCheckBox::toggled, this,
                [this, control](bool checked) { m_form.setChecked(control, checked); });
    }
}

void FormBinding::show(Control control)
{
    if (auto *const edit = qobject_cast<QLineEdit *>(objectOf(control))) {
        // Not when it is the same: the cursor would jump to the end while the user types.
        if (edit->text() != m_form.text(control)) {
            edit->setText(m_form.text(control));
            edit->setCursorPosition(0);
        }
        edit->setToolTip(m_form.tag(control));
    } else if (auto *const box = qobject_cast<QCheckBox *>(objectOf(control))) {
        box->setChecked(m_form.isChecked(control));
    } else if (auto *const label = qobject_cast<QLabel *>(objectOf(control))) {
        label->setText(m_form.text(control));
    }
}

void FormBinding::applyRunState()
{
    for (int place = 0; place < Controls::count(); ++place) {
        const auto control = static_cast<Control>(place);
        const bool enabled = m_form.isEnabled(control);
        QObject *const object = objectOf(control);
        if (auto *const action = qobject_cast<QAction *>(object))
            action->setEnabled(enabled);
        else if (auto *const menu = qobject_cast<QMenu *>(object))
            menu->setEnabled(enabled);
        else if (auto *const edit = qobject_cast<QLineEdit *>(object))
            edit->setEnabled(enabled);
        else if (auto *const button = qobject_cast<QAbstractButton *>(object))
            button->setEnabled(enabled);
    }
}

#pragma once

#include "form/Form.h"

#include <QWidget>

#include <vector>

/// Makes the widgets and menu entries of a window the views of the form's controls: each is found
/// by the control's name. Texts, tags and checks go both ways; whether a control can be used
/// follows the run state.
class FormBinding : public QObject
{
    Q_OBJECT

public:
    FormBinding(Form &form, const QWidget &window);

    /// The widget, action or menu of that control.
    [[nodiscard]] QObject *objectOf(Control control) const
    {
        return m_objects[static_cast<std::size_t>(control)];
    }
    void applyRunState();

private:
    void bind(Control control);
    void show(Control control);

    Form &m_form;
    std::vector<QObject *> m_objects;
};

#include "ui/RunBarView.h"

#include <QPushButton>

void RunBarView::setBar(const RunBar &bar, QWidget &heir)
{
    const auto follow = [this, &bar, &heir] { showContent(bar.content(), heir); };
    connect(&bar, &RunBar::changed, this, follow);
    follow();
}

void RunBarView::showContent(const RunBar::Content &content, QWidget &heir)
{
    const auto names = QMetaEnum::fromType<Control>();
    for (QPushButton *const button : findChildren<QPushButton *>()) {
        const QByteArray name = button->objectName().toLatin1();
        const bool isShown =
            content.buttons.contains(static_cast<Control>(names.keyToValue(name.constData())));
        if (!isShown && button == window()->focusWidget())
            heir.setFocus();
        button->setVisible(isShown);
    }
    setVisible(!content.text.isEmpty());
}

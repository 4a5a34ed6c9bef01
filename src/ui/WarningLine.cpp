#include "ui/WarningLine.h"

#include "ui/Pictures.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

WarningLine::WarningLine(QWidget *parent) : QWidget(parent), m_label(new QLabel(this))
{
    auto *const sign = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    sign->setPixmap(Pictures::icon("warning").pixmap(size));
    m_label->setObjectName(QStringLiteral("lblLine"));
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setTextInteractionFlags(Qt::TextSelectableByKeyboard | Qt::TextSelectableByMouse);
    auto *const layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(sign, 0, Qt::AlignTop);
    layout->addWidget(m_label, 1);
    m_label->setFocusPolicy(Qt::StrongFocus);
    hide();
}

void WarningLine::setText(const QString &text)
{
    m_label->setText(text);
    setVisible(!text.isEmpty());
    if (!text.isEmpty()) {
        QAccessibleEvent alert(m_label, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

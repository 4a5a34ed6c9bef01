#pragma once

#include "journal/RunBar.h"

#include <QFrame>

/// The bar under the recipient list on the screen. Its buttons are the form's controls of their
/// names; hidden, it takes no room.
class RunBarView : public QFrame
{
    Q_OBJECT

public:
    explicit RunBarView(QWidget *parent = nullptr) : QFrame(parent) {}

    /// Shows that bar from now on. A button that goes while it has the keyboard leaves it to
    /// another widget.
    void setBar(const RunBar &bar, QWidget &heir);

private:
    void showContent(const RunBar::Content &content, QWidget &heir);
};

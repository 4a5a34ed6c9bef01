#pragma once

#include "ui/RecipientModel.h"

#include <QTreeView>

#include <functional>
#include <vector>

class QMenu;

/// The recipient list on the screen. It knows no procedures: it says what the user wants of it.
class RecipientView : public QTreeView
{
    Q_OBJECT

public:
    explicit RecipientView(QWidget *parent = nullptr);

    /// Shows that list, with the words of that language; called once.
    void setRecipients(RecipientModel *model, Language language);
    /// While a run is shown the list can be looked at and nothing else.
    void setReadOnly(bool readOnly);

    /// Gives the columns the widths they were designed with, as far as there is room.
    void useDesignWidths();
    /// Lets columns that nearly fill the view fill it.
    void fillUp();

    /// The positions of the selected rows, 1-based and ascending.
    [[nodiscard]] std::vector<int> selectedPositions() const;
    /// Selects these rows (positions 1-based, ascending) and no others.
    void select(const std::vector<int> &positions);
    /// Selects such rows and no others, and brings the first into sight.
    void selectWhere(const std::function<bool(const Recipient &row)> &isMeant);
    /// Makes the row at that position the current one, alone selected and in sight.
    void goTo(int position);
    /// The position of the current row; 0 without one.
    [[nodiscard]] int currentPosition() const { return currentIndex().row() + 1; }
    /// The selected rows as lines of text, their columns set apart by tabs.
    [[nodiscard]] QString selectedText() const;

    void selectAll() override;

Q_SIGNALS:
    /// The heading of the column of that place, 1-based, was clicked.
    void headingClicked(int place);
    void addWanted();
    void removeWanted();
    void checkWanted();
    void uncheckWanted();
    void reportWanted();
    /// More is to be told about the row at that position.
    void detailsWanted(int position);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void fillWith(const std::vector<int> &shares);
    [[nodiscard]] std::vector<int> columnWidths() const;
    void showCurrent(int position);
    void rememberRows();
    void restoreRows();
    void follow();
    void copy() const;
    void addSelections(QMenu &menu);
    void askForDetails(const QModelIndex &index);
    void showSortOrder();
    [[nodiscard]] bool someSelectedIsUnchecked() const;

    RecipientModel *m_model = nullptr;
    Language m_language = Language::English;
    bool m_readOnly = false;
    std::vector<quint64> m_selectedIds; ///< while the model is being reset
    int m_firstVisible = 0;
    int m_shownCurrent = 0;
    int m_shownInView = 0;
};

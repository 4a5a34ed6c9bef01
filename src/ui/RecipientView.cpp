#include "ui/RecipientView.h"

#include "ui/RowSelection.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QResizeEvent>
#include <QScrollBar>

#include <algorithm>
#include <numeric>
#include <unordered_set>

RecipientView::RecipientView(QWidget *parent) : QTreeView(parent)
{
    setRootIsDecorated(false);
    setItemsExpandable(false);
    // Rows of one height spare the view from measuring each of tens of thousands.
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setAlternatingRowColors(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    header()->setSectionsClickable(true);
    header()->setSortIndicatorShown(true);
    header()->setStretchLastSection(false);
    connect(header(), &QHeaderView::sectionClicked, this, [this](int section) {
        if (!m_readOnly)
            Q_EMIT headingClicked(section + 1);
        showSortOrder();
    });
    connect(this, &RecipientView::doubleClicked, this, [this](const QModelIndex &index) {
        if (static_cast<Column>(index.column()) == Column::State)
            askForDetails(index);
    });
}

void RecipientView::askForDetails(const QModelIndex &index)
{
    if (index.isValid())
        Q_EMIT detailsWanted(index.row() + 1);
}

void RecipientView::setRecipients(RecipientModel *model, Language language)
{
    m_language = language;
    m_model = model;
    setModel(model);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this, &RecipientView::rememberRows);
    // Connected behind the view's own, which forgets the selection.
    connect(model, &QAbstractItemModel::modelReset, this, &RecipientView::restoreRows);
    connect(model, &RecipientModel::published, this, &RecipientView::follow);
    showSortOrder();
}

void RecipientView::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    m_model->setEditable(!readOnly);
    header()->setSectionsClickable(!readOnly);
}

void RecipientView::useDesignWidths()
{
    // In twentieths of a point; they are seldom to be had in full, and shrink in proportion.
    fillWith({1764, 5821, 6350, 1940});
}

// The columns share the view as those numbers are to each other.
void RecipientView::fillWith(const std::vector<int> &shares)
{
    int sharesLeft = std::accumulate(shares.begin(), shares.end(), 0);
    int widthLeft = viewport()->width();
    for (int column = 0; column < header()->count(); ++column) {
        const int share = shares[static_cast<std::size_t>(column)];
        const int width = widthLeft * share / sharesLeft;
        setColumnWidth(column, width);
        widthLeft -= width;
        sharesLeft -= share;
    }
}

void RecipientView::resizeEvent(QResizeEvent *event)
{
    QTreeView::resizeEvent(event);
    // Columns that filled the view go on filling it.
    if (header()->count() > 0 && header()->length() == event->oldSize().width())
        fillWith(columnWidths());
}

void RecipientView::fillUp()
{
    // A scroll bar that is there now and was not there when the widths were set, or the reverse.
    const int scrollBar = verticalScrollBar()->sizeHint().width();
    if (qAbs(header()->length() - viewport()->width()) <= scrollBar)
        fillWith(columnWidths());
}

std::vector<int> RecipientView::columnWidths() const
{
    std::vector<int> widths;
    widths.reserve(static_cast<std::size_t>(header()->count()));
    for (int column = 0; column < header()->count(); ++column)
        widths.push_back(columnWidth(column));
    return widths;
}

void RecipientView::focusInEvent(QFocusEvent *event)
{
    QTreeView::focusInEvent(event);
    // Who comes by keyboard has a row to work on.
    const bool byKeyboard =
        event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKeyboard && !selectionModel()->hasSelection() && currentIndex().isValid())
        selectionModel()->select(currentIndex(),
                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

std::vector<int> RecipientView::selectedPositions() const
{
    return selectedRows(*selectionModel());
}

void RecipientView::select(const std::vector<int> &positions)
{
    selectRows(*selectionModel(), positions);
}

void RecipientView::selectAll()
{
    if (!m_readOnly)
        QTreeView::selectAll();
}

void RecipientView::selectWhere(const std::function<bool(const Recipient &row)> &isMeant)
{
    const std::vector<int> positions = m_model->list().positionsWhere(isMeant);
    select(positions);
    if (!positions.empty())
        showCurrent(positions.front());
}

void RecipientView::goTo(int position)
{
    select({position});
    showCurrent(position);
}

void RecipientView::showCurrent(int position)
{
    const QModelIndex row = m_model->index(position - 1, 0);
    selectionModel()->setCurrentIndex(row, QItemSelectionModel::NoUpdate);
    scrollTo(row);
}

QString RecipientView::selectedText() const
{
    QString text;
    for (const int position : selectedPositions()) {
        const Recipient &row = m_model->list().at(position);
        text += row.number + u'\t' + row.name + u'\t' + row.address + u'\t' + row.state;
        if (!row.attempt.reply.isEmpty())
            text += u'\t' + row.attempt.reply.toText();
        text += u'\n';
    }
    return text;
}

void RecipientView::copy() const
{
    QGuiApplication::clipboard()->setText(selectedText());
}

bool RecipientView::someSelectedIsUnchecked() const
{
    const std::vector<int> positions = selectedPositions();
    return std::any_of(positions.begin(), positions.end(),
                       [this](int position) { return !m_model->list().at(position).checked; });
}

void RecipientView::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        copy();
        return;
    }
    const bool isPlain = event->modifiers() == Qt::NoModifier;
    if (isPlain && event->key() == Qt::Key_Insert) {
        Q_EMIT addWanted();
    } else if (isPlain && event->key() == Qt::Key_Delete) {
        Q_EMIT removeWanted();
    } else if (isPlain && event->key() == Qt::Key_Space) {
        if (someSelectedIsUnchecked())
            Q_EMIT checkWanted();
        else
            Q_EMIT uncheckWanted();
    } else {
        QTreeView::keyPressEvent(event);
    }
}

void RecipientView::contextMenuEvent(QContextMenuEvent *event)
{
    if (m_readOnly)
        return;
    auto *const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("recipientMenu"));
    const auto addForSelected = [this, menu](const QString &text, auto what) {
        menu->addAction(text, this, what)->setEnabled(selectionModel()->hasSelection());
    };
    addForSelected(tr("Check"), &RecipientView::checkWanted);
    addForSelected(tr("Uncheck"), &RecipientView::uncheckWanted);
    addForSelected(tr("Remove"), &RecipientView::removeWanted);
    menu->addSeparator();
    addSelections(*menu->addMenu(tr("Select")));
    menu->addAction(tr("Select all"), this, &RecipientView::selectAll);
    menu->addSeparator();
    addForSelected(tr("Copy as text"), &RecipientView::copy);
    menu->addSeparator();
    menu->addAction(tr("Details..."), this, [this] { askForDetails(currentIndex()); })
        ->setEnabled(currentIndex().isValid());
    menu->addAction(tr("Export report..."), this, &RecipientView::reportWanted)
        ->setEnabled(m_model->rowCount() > 0);
    menu->popup(event->globalPos());
}

// States are found whichever language their words are in.
void RecipientView::addSelections(QMenu &menu)
{
    const auto add = [this, &menu](const QString &text, auto isMeant) {
        menu.addAction(text, this, [this, isMeant] { selectWhere(isMeant); });
    };
    for (const RowState state : {RowState::Waiting, RowState::Sending, RowState::Sent,
                                 RowState::Error, RowState::NotSent}) {
        add(stateWord(state, m_language),
            [state](const Recipient &row) { return stateOfWord(row.state) == state; });
    }
    menu.addSeparator();
    add(tr("Refused for now"), isRefusedForNow);
    add(tr("In doubt"), isInDoubt);
}

void RecipientView::showSortOrder()
{
    const RecipientList &list = m_model->list();
    header()->setSortIndicator(static_cast<int>(list.sortColumn()), list.sortOrder());
}

void RecipientView::rememberRows()
{
    m_selectedIds.clear();
    for (const int position : selectedPositions())
        m_selectedIds.push_back(m_model->idAt(position));
    m_firstVisible = verticalScrollBar()->value();
}

void RecipientView::restoreRows()
{
    if (!m_selectedIds.empty()) {
        const std::unordered_set<quint64> ids(m_selectedIds.begin(), m_selectedIds.end());
        m_selectedIds.clear();
        std::vector<int> positions;
        for (int position = 1; position <= m_model->rowCount(); ++position) {
            if (ids.contains(m_model->idAt(position)))
                positions.push_back(position);
        }
        select(positions);
    }
    m_shownCurrent = 0;
    m_shownInView = 0;
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(m_firstVisible);
    showSortOrder();
}

// The row that is being sent becomes the current one, at the rate at which the list publishes.
void RecipientView::follow()
{
    const RecipientList &list = m_model->list();
    if (list.currentRow() != m_shownCurrent && list.currentRow() != 0) {
        m_shownCurrent = list.currentRow();
        selectionModel()->setCurrentIndex(m_model->index(m_shownCurrent - 1, 0),
                                          QItemSelectionModel::ClearAndSelect |
                                              QItemSelectionModel::Rows);
    }
    if (list.rowInView() != m_shownInView && list.rowInView() != 0) {
        m_shownInView = list.rowInView();
        scrollTo(m_model->index(m_shownInView - 1, 0));
    }
}

#include "ui/RecipientModel.h"

#include "recipients/AttemptText.h"
#include "ui/Pictures.h"

#include <algorithm>

namespace {

constexpr qint64 PublicationInterval = 100; // milliseconds

// What there is to know beside the text of that column.
QString beside(const Recipient &row, Column column)
{
    return column == Column::State ? AttemptText::besideState(row) : QString();
}

} // namespace

RecipientModel::RecipientModel(RecipientList &list, QObject *parent)
    : QAbstractTableModel(parent),
      m_list(list),
      m_pictures{Pictures::icon("row-checked"), Pictures::icon("row-unchecked"),
                 Pictures::icon("row-added-checked"), Pictures::icon("row-added-unchecked")}
{
    m_publication.setSingleShot(true);
    connect(&m_publication, &QTimer::timeout, this, &RecipientModel::publish);
    connect(&m_list, &RecipientList::rowsChanged, this, &RecipientModel::takeRows);
    connect(&m_list, &RecipientList::rowChanged, this, &RecipientModel::noteChange);
    takeRows();
}

void RecipientModel::takeRows()
{
    beginResetModel();
    m_ids.clear();
    m_ids.reserve(m_list.rows().size());
    for (const Recipient &row : m_list.rows())
        m_ids.push_back(row.id);
    m_firstChanged = 0;
    m_lastChanged = 0;
    endResetModel();
}

void RecipientModel::noteChange(int position)
{
    const bool isFirst = m_firstChanged == 0;
    m_firstChanged = isFirst ? position : std::min(m_firstChanged, position);
    m_lastChanged = std::max(m_lastChanged, position);
    if (m_publication.isActive())
        return;
    const qint64 waited =
        m_sincePublication.isValid() ? m_sincePublication.elapsed() : PublicationInterval;
    m_publication.start(static_cast<int>(std::max<qint64>(0, PublicationInterval - waited)));
}

void RecipientModel::publish()
{
    m_sincePublication.start();
    if (m_firstChanged != 0) {
        const QModelIndex first = index(m_firstChanged - 1, 0);
        const QModelIndex last = index(m_lastChanged - 1, columnCount() - 1);
        m_firstChanged = 0;
        m_lastChanged = 0;
        Q_EMIT dataChanged(first, last);
    }
    Q_EMIT published();
}

int RecipientModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_ids.size());
}

int RecipientModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(Column::State) + 1;
}

QVariant RecipientModel::picture(qint16 imageIndex) const
{
    // Files may hold any number; one without a picture shows none.
    const int place = imageIndex - RowImage::Checked;
    if (place < 0 || place >= static_cast<int>(m_pictures.size()))
        return {};
    return m_pictures[static_cast<std::size_t>(place)];
}

QVariant RecipientModel::data(const QModelIndex &index, int role) const
{
    const Recipient &row = m_list.at(index.row() + 1);
    const auto column = static_cast<Column>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return RecipientList::textOf(row, column);
    case Qt::CheckStateRole:
        if (column == Column::Number)
            return row.checked ? Qt::Checked : Qt::Unchecked;
        break;
    case Qt::DecorationRole:
        if (column == Column::Number)
            return picture(row.imageIndex);
        break;
    case Qt::TextAlignmentRole:
        if (column == Column::State)
            return Qt::AlignCenter;
        break;
    case Qt::ToolTipRole:
        if (const QString text = beside(row, column); !text.isEmpty())
            return QStringLiteral("<p>%1</p>").arg(text.toHtmlEscaped());
        break;
    case Qt::AccessibleDescriptionRole:
        if (const QString text = beside(row, column); !text.isEmpty())
            return text;
        break;
    default:
        break;
    }
    return {};
}

bool RecipientModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (role != Qt::CheckStateRole || !m_editable)
        return false;
    Q_EMIT itemChecked(index.row() + 1, value.toInt() == Qt::Checked);
    return true;
}

QVariant RecipientModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::TextAlignmentRole) {
        const bool isState = static_cast<Column>(section) == Column::State;
        return QVariant::fromValue(isState ? Qt::Alignment(Qt::AlignCenter)
                                           : Qt::AlignLeft | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole)
        return {};
    switch (static_cast<Column>(section)) {
    case Column::Number:
        return tr("N°");
    case Column::Name:
        return tr("Name");
    case Column::Address:
        return tr("Address");
    case Column::State:
        break;
    }
    return tr("State");
}

Qt::ItemFlags RecipientModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
    if (m_editable && static_cast<Column>(index.column()) == Column::Number)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

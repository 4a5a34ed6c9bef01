#pragma once

#include "recipients/RecipientList.h"

#include <QAbstractTableModel>
#include <QElapsedTimer>
#include <QIcon>
#include <QTimer>

#include <vector>

/// The recipient list as a table. What changes in rows is gathered and published at most ten times
/// a second, however fast the rows change: a run must not spend its time on painting.
class RecipientModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit RecipientModel(RecipientList &list, QObject *parent = nullptr);

    /// Check boxes can be changed only while the list is editable.
    void setEditable(bool editable) { m_editable = editable; }
    [[nodiscard]] bool isEditable() const { return m_editable; }

    /// The identity of the row at that position, 1-based, as of the last reset.
    [[nodiscard]] quint64 idAt(int position) const
    {
        return m_ids[static_cast<std::size_t>(position - 1)];
    }
    [[nodiscard]] const RecipientList &list() const { return m_list; }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex &index) const override;

Q_SIGNALS:
    /// The user changed the check box of the row at that position, 1-based.
    void itemChecked(int position, bool checked);
    /// What changed since the last time has just been published.
    void published();

private:
    void takeRows();
    void noteChange(int position);
    void publish();
    [[nodiscard]] QVariant picture(qint16 imageIndex) const;

    RecipientList &m_list;
    std::vector<quint64> m_ids;
    std::vector<QIcon> m_pictures;
    bool m_editable = true;
    int m_firstChanged = 0; ///< 0: nothing to publish
    int m_lastChanged = 0;
    QTimer m_publication;
    QElapsedTimer m_sincePublication;
};

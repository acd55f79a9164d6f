// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/lists/personlistmodel.h"

#include "platform/jet/order/sortkey.h"
#include <algorithm>
#include <limits>
#include <QCoreApplication>
#include <QDataStream>
#include <QIODevice>
#include <QMimeData>

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

const QString MimeType = u"application/x-kalvenor-persons"_s;

/// As people type names: without case, accents and punctuation.
QString folded(QStringView text)
{
    QString plain;
    for (const QChar unit : text.toString().normalized(QString::NormalizationForm_D)) {
        if (unit.isLetterOrNumber() || unit.isSpace() || unit == u',')
            plain += unit;
    }
    return plain.replace(u'ß', u"ss"_s).toCaseFolded();
}

/// Persons on their way from one list to the other, for this process alone.
struct DraggedPersons {
    qint64 process = 0;
    qint32 from = -1;
    std::vector<qint32> counters{};
};

QByteArray encode(const DraggedPersons &dragged)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << dragged.process << dragged.from;
    for (const qint32 counter : dragged.counters)
        stream << counter;
    return bytes;
}

DraggedPersons decode(const QByteArray &bytes)
{
    DraggedPersons dragged;
    QDataStream stream(bytes);
    stream >> dragged.process >> dragged.from;
    while (!stream.atEnd()) {
        qint32 counter = 0;
        stream >> counter;
        if (stream.status() != QDataStream::Ok)
            return {};
        dragged.counters.push_back(counter);
    }
    return dragged;
}

} // namespace

PersonListModel::PersonListModel(PersonList list, QObject *parent) : QAbstractListModel(parent), m_list(list)
{
}

PersonListModel::~PersonListModel() = default;

void PersonListModel::show(std::shared_ptr<dao::Recordset> persons)
{
    const int counter = persons ? persons->fieldIndex(u"Counter"_s) : -1;
    const int listname = persons ? persons->fieldIndex(u"Listname"_s) : -1;
    beginResetModel();
    const std::shared_ptr<dao::Recordset> before = std::exchange(m_persons, std::move(persons));
    m_rows = m_persons ? m_persons->rows() : std::span<const quint32>();
    m_count =
        m_persons ? static_cast<int>(std::min<qint64>(m_persons->recordCount(), std::numeric_limits<int>::max())) : 0;
    m_counter = counter;
    m_listname = listname;
    endResetModel();
    Q_EMIT replaced(before);
    if (before && before != m_persons)
        before->close();
}

qint32 PersonListModel::counterAt(int row) const
{
    m_persons->moveTo(row);
    return m_persons->integer(m_counter).value_or(0);
}

QString PersonListModel::nameAt(int row) const
{
    m_persons->moveTo(row);
    return m_persons->text(m_listname);
}

int PersonListModel::findName(const QString &typed) const
{
    const QString wanted = folded(typed);
    if (wanted.isEmpty())
        return -1;
    int first = 0;
    for (int end = m_count; first < end;) {
        const int middle = first + (end - first) / 2;
        if (jet::compareGeneral(nameAt(middle), typed) < 0)
            first = middle + 1;
        else
            end = middle;
    }
    return first < m_count && folded(nameAt(first)).startsWith(wanted) ? first : -1;
}

int PersonListModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant PersonListModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return nameAt(index.row());
    case CounterRole:
        return counterAt(index.row());
    default:
        return {};
    }
}

Qt::ItemFlags PersonListModel::flags(const QModelIndex &index) const
{
    // Persons are dropped on the list, not on a person; its place follows from the order of the names.
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled |
                                 Qt::ItemNeverHasChildren
                           : Qt::ItemIsDropEnabled;
}

QStringList PersonListModel::mimeTypes() const
{
    return {MimeType};
}

QMimeData *PersonListModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<qint32> counters;
    for (const QModelIndex &index : indexes)
        counters.push_back(counterAt(index.row()));
    return mimeDataOf(counters);
}

QMimeData *PersonListModel::mimeDataOf(const std::vector<qint32> &counters) const
{
    auto *data = new QMimeData;
    data->setData(MimeType, encode({QCoreApplication::applicationPid(), static_cast<qint32>(m_list), counters}));
    return data;
}

bool PersonListModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int, int, const QModelIndex &) const
{
    if (action != Qt::MoveAction || data == nullptr || !data->hasFormat(MimeType))
        return false;
    const DraggedPersons dragged = decode(data->data(MimeType));
    return dragged.process == QCoreApplication::applicationPid() && dragged.from != static_cast<qint32>(m_list) &&
           !dragged.counters.empty();
}

bool PersonListModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                                   const QModelIndex &parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    Q_EMIT dropped(decode(data->data(MimeType)).counters);
    return true;
}

} // namespace kalvenor::selection

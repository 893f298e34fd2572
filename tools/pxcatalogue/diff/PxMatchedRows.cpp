#include "diff/PxMatchedRows.h"

#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QByteArray identityOf(const QJsonObject &row, const QStringList &columns)
{
    QJsonArray identity;
    for (const QString &column : columns)
        identity.append(row[column]);
    return QJsonDocument(identity).toJson(QJsonDocument::Compact);
}

} // namespace

PxMatchedRows::Pairs PxMatchedRows::of(const QJsonArray &oldRows, const QJsonArray &newRows,
                                       const QVector<QStringList> &identities)
{
    QVector<int> oldOfNew(newRows.size(), -1);
    QVector<bool> isMatched(oldRows.size(), false);
    for (const QStringList &columns : identities) {
        QHash<QByteArray, QVector<int>> free; // the last one first
        for (int i = oldRows.size() - 1; i >= 0; --i) {
            if (!isMatched[i] && oldRows[i].isObject())
                free[identityOf(oldRows[i].toObject(), columns)].append(i);
        }
        for (int i = 0; i < newRows.size() && !free.isEmpty(); ++i) {
            if (oldOfNew[i] >= 0 || !newRows[i].isObject())
                continue;
            const auto found = free.find(identityOf(newRows[i].toObject(), columns));
            if (found == free.end() || found->isEmpty())
                continue;
            oldOfNew[i] = found->takeLast();
            isMatched[oldOfNew[i]] = true;
        }
    }
    Pairs pairs;
    for (int i = 0; i < newRows.size(); ++i) {
        if (newRows[i].isObject())
            pairs.append({oldOfNew[i], i});
    }
    for (int i = 0; i < oldRows.size(); ++i) {
        if (!isMatched[i] && oldRows[i].isObject())
            pairs.append({i, -1});
    }
    return pairs;
}

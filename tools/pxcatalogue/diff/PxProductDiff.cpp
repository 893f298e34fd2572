#include "diff/PxProductDiff.h"

#include "diff/PxDiffWords.h"
#include "diff/PxExplainedChanges.h"
#include "diff/PxMatchedRows.h"
#include "report/PxNumberRanges.h"

namespace {

/** Names are in the language of whoever exported the catalogue. */
bool areSame(const PxDiffKey &key, const QJsonValue &a, const QJsonValue &b)
{
    return key.format == PxReportFormat::Name ? a["keyword"] == b["keyword"] : a == b;
}

QString nameOf(const PxDiffTable &table, const QJsonValue &row)
{
    QStringList words{table.label};
    const QStringList columns = table.identityColumns().constFirst();
    for (const QString &column : columns)
        words.append(PxDiffWords::ofParts(row[column]));
    words.removeAll(QString());
    return words.join(' ');
}

} // namespace

PxProductDiff::PxProductDiff(const QByteArray &oldLine, const QByteArray &newLine,
                             const QSet<QString> &themes)
    : m_old(oldLine)
    , m_new(newLine)
{
    const int pages = qMin(m_old.printedPages(), m_new.printedPages());
    const bool havePages = m_old.printedPages() == m_new.printedPages();
    const QSet<QString> kinds = m_old.kindsOfPages() & m_new.kindsOfPages();
    const bool haveKinds = m_old.kindsOfPages() == m_new.kindsOfPages();
    for (PxComparedProduct *product : {&m_old, &m_new}) {
        if (product->printedPages() > pages)
            product->limitPages(pages);
        if (!havePages || !haveKinds)
            product->limitSurroundings(pages, kinds);
        product->limitThemes(themes);
    }
    findCommonPageCounts();
}

void PxProductDiff::findCommonPageCounts()
{
    const QList<int> &oldCounts = m_old.pageCounts();
    const QList<int> &newCounts = m_new.pageCounts();
    for (int i = 0, j = 0; i < oldCounts.size() && j < newCounts.size();) {
        if (oldCounts[i] == newCounts[j])
            m_common.append({oldCounts[i], m_old.rowOf(i), m_new.rowOf(j)});
        const bool isOldNext = oldCounts[i] <= newCounts[j];
        const bool isNewNext = newCounts[j] <= oldCounts[i];
        i += isOldNext ? 1 : 0;
        j += isNewNext ? 1 : 0;
    }
}

QVector<PxChange> PxProductDiff::changes()
{
    for (const PxDiffKey &key : PxDiffKeys::ofProducts()) {
        const QString pointer = key.pointer;
        if (!pointer.contains('*'))
            compare(key, pointer, pointer, QString());
        for (const PxDiffTable &table : PxDiffKeys::tables()) {
            if (pointer == QString("/%1/*").arg(table.section))
                compareTable(table);
        }
    }
    return m_changes;
}

void PxProductDiff::compareTable(const PxDiffTable &table)
{
    const QString section = QString("/%1").arg(table.section);
    if (m_old.value(section).isUndefined() || m_new.value(section).isUndefined())
        return; // written by another version
    const QJsonArray oldRows = m_old.table(table.section);
    const QJsonArray newRows = m_new.table(table.section);
    const QString rows = QString("/%1/*").arg(table.section);
    const auto isFixed = [&table](const PxComparedProduct &product, int row) {
        return product.valueByPageCount(QString("/%1/%2").arg(table.section).arg(row))
            .columns.isEmpty();
    };
    for (const auto &[oldRow, newRow] :
         PxMatchedRows::of(oldRows, newRows, table.identityColumns())) {
        const QJsonValue before = oldRow < 0 ? QJsonValue() : oldRows[oldRow];
        const QJsonValue after = newRow < 0 ? QJsonValue() : newRows[newRow];
        if (before == after && isFixed(m_old, oldRow) && isFixed(m_new, newRow))
            continue;
        const QString name = nameOf(table, newRow < 0 ? before : after);
        const QString number = QString::number(newRow < 0 ? oldRow : newRow);
        for (const PxDiffKey &key : PxDiffKeys::ofProducts()) {
            const QString pattern = key.pointer;
            if (!pattern.startsWith(rows))
                continue;
            const QString pointer = QString(pattern).replace('*', number);
            if (pattern != rows && oldRow >= 0 && newRow >= 0)
                compare(key, QString(pattern).replace('*', QString::number(oldRow)), pointer, name);
            else if (pattern == rows && (oldRow < 0 || newRow < 0))
                m_changes.append({&key, pointer, name, before, after});
        }
    }
}

void PxProductDiff::compare(const PxDiffKey &key, const QString &oldPointer,
                            const QString &newPointer, const QString &row)
{
    const PxValueByPageCount before = m_old.valueByPageCount(oldPointer);
    const PxValueByPageCount after = m_new.valueByPageCount(newPointer);
    if (before.fixed.isUndefined() || after.fixed.isUndefined()) // written by another version
        return;
    const PxChange change{&key, newPointer, row, before.fixed, after.fixed};
    if (!before.columns.isEmpty() || !after.columns.isEmpty()) {
        compareByPageCount(change, before, after);
        return;
    }
    // Values with page counts that only one of them has cannot be compared.
    const bool haveSamePageCounts = !m_common.isEmpty() || m_old.pageCounts() == m_new.pageCounts();
    const bool isComparable = haveSamePageCounts || !PxExplainedChanges::dependsOnPageCount(key);
    if (isComparable && !areSame(key, before.fixed, after.fixed))
        m_changes.append(change);
}

/** Adds a change for each run of page counts with the same two values. */
void PxProductDiff::compareByPageCount(const PxChange &change, const PxValueByPageCount &before,
                                       const PxValueByPageCount &after)
{
    QList<int> pageCounts;
    PxChange run = change;
    const auto finish = [&](int end) {
        if (run.end == 0)
            return;
        run.end = end;
        run.firstPageCount = pageCounts.constFirst();
        run.lastPageCount = pageCounts.constLast();
        run.pageCounts = PxNumberRanges::text(pageCounts);
        m_changes.append(run);
        run.end = 0;
        pageCounts.clear();
    };
    for (int i = 0; i < m_common.size(); ++i) {
        const QJsonValue old = before.at(m_common[i].oldRow);
        const QJsonValue now = after.at(m_common[i].newRow);
        const bool isChange = !areSame(*change.key, old, now);
        if (!isChange || old != run.before || now != run.after)
            finish(i);
        if (!isChange)
            continue;
        if (run.end == 0) {
            run.before = old;
            run.after = now;
            run.begin = i;
            run.end = i + 1;
        }
        pageCounts.append(m_common[i].pageCount);
    }
    finish(m_common.size());
}

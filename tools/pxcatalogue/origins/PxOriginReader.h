#pragma once

#include "format/PxOriginRows.h"
#include "origins/PxOriginEntries.h"
#include "origins/PxOriginFile.h"

#include <QJsonObject>
#include <QMap>
#include <QVector>

struct PxShownProduct;

/** Applies the rows of origins to one product. */
class PxOriginReader
{
public:
    PxOriginReader(const PxShownProduct &shown, const PxOriginFiles &files);

    /** By JSON pointer. Of long tables only the first rows have origins of their own. */
    QMap<QString, PxOrigin> read();

private:
    /** What a file, the command line or another value contributes. */
    struct Input
    {
        bool isThere = false;
        bool isWritten = false; ///< is there, though perhaps it cannot be read
        bool isDefault = false; ///< says the same as if it was not there
        PxOrigin::Kind kind = PxOrigin::Kind::Computed;
        PxPlace place = PxOrigin::nowhere();
        QString pointer = {}; ///< to another value
        QString value = {};

        bool isNamed() const { return !pointer.isEmpty() || place.line > 0; }
        PxOrigin::Part part() const { return {pointer, place}; }
    };
    using Inputs = QVector<Input>;

    void removeUnprinted();
    int rowsOf(const QString &pattern) const;
    void readRow(const QString &pattern, int index);
    const PxOriginRow *rowFor(const QString &pattern, int index) const;
    bool holds(const PxOriginRow &row, int index) const;
    bool holdsForPage(PxOriginCase when, int index) const;
    PxOrigin originOf(const PxOriginRow &row, int index) const;
    /** The inputs before or behind the ";" of a row, those that are not there left out. */
    Inputs inputsOf(const PxOriginRow &row, bool areChoosing, int index) const;
    Inputs furtherLists(const QString &term) const;
    Input input(const QString &alternatives, int index) const;
    Input inputAt(const QString &term, int index) const;
    PxOriginElement elementAt(const QString &file, const QString &path, int index) const;
    static Input inputOf(const PxOriginElement &element);
    static Input attributeOf(const PxOriginElement &owner, const QString &name);
    QVector<PxOrigin::Part> filled(const QString &rule, const Inputs &inputs) const;

    const PxShownProduct &m_shown;
    QJsonObject m_report;
    QMap<QString, PxOriginFile> m_files; // by their prefix in the rows
    PxOriginEntries m_entries;
    QMap<QString, PxOrigin> m_origins;
};

#pragma once

#include "format/PxOriginRows.h"
#include "origins/PxOriginFile.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/** An input in a row of origins, taken apart. */
struct PxOriginTerm
{
    enum class Kind { Value, Question, Clock, ProductFile, Element };

    explicit PxOriginTerm(const QString &term);

    Kind kind = Kind::Element;
    QString pointer; ///< to another value, with "*" for the row of a table
    QString section; ///< the first part of the pointer
    PxOriginFile PxOriginFiles::*file = nullptr; ///< of an element
    QVector<QByteArray> path;
    QString attribute;           ///< empty for an element
    bool isOneOfSeveral = false; ///< "[…]" says which element is meant
};

/** A row of origins, taken apart once for all products. */
struct PxOriginRule
{
    /** The first one that is there counts. */
    using Alternatives = QVector<PxOriginTerm>;

    explicit PxOriginRule(const PxOriginRow &row);

    PxOriginCase when;
    QString pattern;
    QString table; ///< "/barcodes/*" for a pattern of values in its rows, else empty
    QString rule;
    bool isFormula;
    QVector<Alternatives> inputs;
    QVector<Alternatives> choosing;
};

/** The rules of a value, or of the values in all rows of a table. */
struct PxOriginRules
{
    QString pattern;
    QString section; ///< the first part of the pattern
    QVector<PxOriginRule> rules;

    bool isOfRows() const { return pattern.contains('*'); }
    /** Whether it is the row of a table, which is no value of its own. */
    bool isOfWholeRow() const { return pattern.endsWith('*'); }

    static const QVector<PxOriginRules> &all();
    /** Null for none. */
    static const PxOriginRules *of(const QString &pattern);
};

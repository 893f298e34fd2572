#pragma once

#include "check/source/PxPlace.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

/** Where a value comes from. */
struct PxOrigin
{
    enum class Kind {
        File,         ///< the product file, or that of another product
        Default,      ///< no file says it
        Computed,     ///< from several values, or by a rule
        UserDefaults, ///< the templates that the user prefers
        Theme,
        ProductTypes,
        Question, ///< the command line
        Clock,
    };

    Kind kind = Kind::Default;
    /** Of an attribute's name, or of an element's. Line 0 if there is none. */
    PxPlace place = {QString(), 0, 0, 0, 0};
    /** JSON pointers into the same output, and places as "path:line:column". */
    QStringList from = {};
    QString rule = {}; ///< a sentence or a formula; may be empty

    /** "path:line:column", only the path without a line, empty without a path. */
    static QString text(const PxPlace &place);

    /** The members kind, path, line, column, from and rule; null what there is none of. */
    QJsonObject json() const;
    /** For example "products/x.xml:6:12" or "spine 74 (products/x.xml:62:26) + 20". */
    QString text() const;

private:
    QString otherPlaces() const;
};

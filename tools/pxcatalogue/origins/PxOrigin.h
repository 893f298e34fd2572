#pragma once

#include "check/source/PxPlace.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

#include <functional>

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

    /** A text, or a place if it has a path. */
    struct Part
    {
        QString text = {};
        PxPlace place = nowhere();

        bool isPlace() const { return !place.path.isEmpty(); }
        bool operator==(const Part &other) const;
    };
    /** How a place is written. */
    using Naming = std::function<QString(const PxPlace &place)>;

    Kind kind = Kind::Default;
    /** Of an attribute's name, or of an element's. Line 0 if there is none. */
    PxPlace place = nowhere();
    QVector<Part> from = {};    ///< JSON pointers into the same output, and places
    QString rule = {};          ///< a sentence; may be empty
    QVector<Part> formula = {}; ///< in place of a rule; may be empty

    static PxPlace nowhere() { return {QString(), 0, 0, 0, 0}; }
    /** "path:line:column", only the path without a line, empty without a path. */
    static QString text(const PxPlace &place);
    /** "line:column". */
    static QString position(const PxPlace &place);

    /** The members kind, path, line, column, from and rule; null what there is none of. */
    QJsonObject json() const;
    /** For example "products/x.xml:6:12" or "spine 74 (products/x.xml:62:26) + 20". */
    QString text(const Naming &naming = nullptr) const;
    /** What text() consists of. */
    QVector<Part> parts() const;

private:
    QVector<Part> otherPlaces() const;
};

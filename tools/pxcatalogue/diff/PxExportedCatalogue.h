#pragma once

#include "writing/PxProblem.h"

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QPair>
#include <QString>

#include <optional>

class QIODevice;
class QJsonObject;

/**
 * A catalogue as an export describes it: the line of each object.
 *
 * Lines are read one by one. Whatever is no whole export is a problem, which names the line.
 */
class PxExportedCatalogue
{
public:
    /** The longest line that is read. */
    static constexpr int maximumLine = 16 * 1024 * 1024;

    struct Object
    {
        QByteArray line;
        int code = 0; // of a product
    };
    /** The name of an object, and how many have the same name before it: themes may. */
    using Key = QPair<QString, int>;
    using Objects = QMap<Key, Object>;

    /** Messages show the name. */
    explicit PxExportedCatalogue(const QString &name) : m_name(name) {}

    std::optional<PxProblem> read(QIODevice *device);
    std::optional<PxProblem> addLine(const QByteArray &line);
    /** Call it after the last line. */
    std::optional<PxProblem> problemOfEnd() const;

    /** Whether not even the first line was read. */
    bool isEmpty() const { return m_line == 0; }
    const Objects &products() const { return m_products; }
    const Objects &legacyProducts() const { return m_legacyProducts; }
    const Objects &themes() const { return m_themes; }

private:
    PxProblem problem(const QString &text) const;
    std::optional<PxProblem> readHeader(const QJsonObject &header);
    std::optional<PxProblem> addObject(const QString &type, const QJsonObject &object,
                                       const QByteArray &line);

    QString m_name;
    int m_line = 0;
    QMap<QString, int> m_missing; // how many objects of each type are still to come
    QHash<QString, int> m_themesWithId;
    Objects m_products;
    Objects m_legacyProducts;
    Objects m_themes;
};

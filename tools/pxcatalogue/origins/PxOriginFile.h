#pragma once

#include "check/source/PxKeptFiles.h"
#include "format/PxFormatRows.h"
#include "origins/PxOrigin.h"

#include <PxProductType.h>

struct PxShownProduct;

/** A file in which values of a product stand, and the element that they are below. */
class PxOriginFile
{
public:
    /** No file. */
    PxOriginFile() = default;
    /** By the name "products/x.xml" or "products/legacy/x.xml", wherever these directories are. */
    static PxOriginFile product(const QString &name, const PxKeptFiles &kept = {});
    /** With the "defaults" of the user for a product that is called so in its file. */
    static PxOriginFile userDefaults(const QString &productName);
    /** With the "theme" that the library finds by this id. */
    static PxOriginFile theme(const QString &id);
    /** With the row of the product type. */
    static PxOriginFile productType(const PxProductType &type);

    PxOrigin::Kind kind() const { return m_kind; }
    /** The product, theme, list or row; null if there is none. */
    const PxSourceElement *element() const { return m_element; }
    const PxCheckedFile &source() const { return *m_source; }
    /** The children with one name of the first child with the other name. */
    QVector<const PxSourceElement *> entries(const char *list, const char *name) const;
    /** As it is shown; empty without a file. */
    QString path() const { return m_path; }
    /** The place, with the path as it is shown. */
    PxPlace place(const PxSourceRange &range) const;
    /** The row of the format for an element; null if the library does not read it. */
    const PxElementRow *rowOf(const PxSourceElement &element) const;

private:
    struct ProductTypes;

    PxOriginFile(PxOrigin::Kind kind, PxFileKind format, const PxKeptFiles::File &source,
                 const QString &path);
    const PxSourceElement *root() const { return m_source->root(); }

    PxOrigin::Kind m_kind = PxOrigin::Kind::Default;
    PxFileKind m_format = PxFileKind::Product;
    QString m_path;
    PxKeptFiles::File m_source;
    const PxSourceElement *m_element = nullptr;
};

/** The files in which the values of one product stand. */
struct PxOriginFiles
{
    /** Reads those that are not kept. */
    explicit PxOriginFiles(const PxShownProduct &shown, const PxKeptFiles &kept = {});

    PxOriginFile product = {};
    PxOriginFile userDefaults = {};
    PxOriginFile theme = {};
    PxOriginFile type = {};
    PxOriginFile replaced = {};  ///< of the product that this one replaces
    PxOriginFile successor = {}; ///< of the product that replaces this one
};

#pragma once

#include <QString>

class PxProductType;
class QDomElement;

namespace PxProductFile {

/**
 * The path in the catalogue of the file from which the library reads this product:
 * "products/x.xml", or "products/legacy/x.xml" for one of an earlier catalogue. Empty if there is
 * none.
 *
 * Reads the product files until it knows, each of them once: they must not change.
 */
QString pathOf(const PxProductType &type, bool isLegacy);

/** Says what is in a file that was read for something else, so that pathOf() need not read it. */
void setContent(const QString &absolutePath, const QDomElement &root);

} // namespace PxProductFile

#pragma once

#include "format/PxCatalogueKeywords.h"
#include "why/PxWhyQuestion.h"

class PxOriginFile;
class PxSourceElement;
class PxWhyProduct;

/** Rules that several questions share. */
namespace PxWhyRules {

/** Whether a file of any catalogue describes the product. */
PxWhyRule file(const PxWhyProduct &product);
/** Whether the product is in the current catalogue. */
PxWhyRule catalogue(const PxWhyProduct &product, const QString &prefix = {});
/** What has to be known of a product that is offered, after catalogue(). */
QVector<PxWhyRule> known(const PxWhyProduct &product, const QString &prefix = {});
/** Null for an empty text. */
QJsonValue orNull(const QString &text);
/** Null for the value 0. */
template <typename WRAPPER>
QJsonValue keyword(const WRAPPER &wrapper)
{
    return wrapper.isNull() ? QJsonValue() : QJsonValue(keywordOf(wrapper));
}
/** Of a value on the command line. */
PxOrigin asked(const QString &option);
/** The place of an attribute, or of the element without it; the default for no element. */
PxOrigin in(const PxOriginFile &file, const PxSourceElement *element,
            const char *attribute = nullptr);
/** Of very many entries that were not chosen only the first are listed. */
void addLost(const PxOriginFile &file, const PxSourceElement &entry, const QString &reason,
             PxWhyRule *rule);

} // namespace PxWhyRules

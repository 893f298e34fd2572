#include "check/catalogue/PxCatalogueCheck.h"

#include "check/product/PxProductCheck.h"
#include "check/words/PxSpelling.h"

#include <PxDirectoryConfig.h>
#include <description/PxProductTypeDescriptionReader.h>

#include <QFileInfo>

#include <algorithm>
#include <set>
#include <utility>

namespace {

/** Whether a length is probably in another unit than the others of the sorted list it is in. */
bool isFarOff(const QVector<qint64> &lengths, qint64 length, int factor)
{
    constexpr int minimumOthers = 8; // fewer do not show what is usual
    constexpr int medianFactor = 7;  // a unit is ten times off, but sizes differ, too
    const int others = lengths.size() - 1;
    const auto larger = [&](int times) {
        return lengths.end() - std::lower_bound(lengths.begin(), lengths.end(), times * length);
    };
    const auto smaller = [&](int times) {
        return std::upper_bound(lengths.begin(), lengths.end(), length / times) - lengths.begin();
    };
    const auto isNearlyAll = [&](auto count) { return 10 * count >= 9 * others; };
    return others >= minimumOthers &&
           ((isNearlyAll(larger(factor)) && 2 * larger(medianFactor) >= others) ||
            (isNearlyAll(smaller(factor)) && 2 * smaller(medianFactor) >= others));
}

/** How many times a length may differ from nearly all others: gifts are of any size. */
int usualFactor(const PxProductType &type)
{
    return type.isGift() || type.isDeko() ? 10 : 4;
}

/** Whether the file has the name of the product, in any case. */
bool isNamedAfter(const QString &path, const PxProductType &type)
{
    return QFileInfo(path).completeBaseName().compare(type.productName(), Qt::CaseInsensitive) == 0;
}

qint64 longerSide(const QSize &size)
{
    return std::max(size.width(), size.height());
}

} // namespace

void PxCatalogueCheck::addProduct(const PxCheckedProduct &product, bool isInOtherUnit)
{
    constexpr const char *legacy = "legacy";
    const PxCheckedFile &file = product.file();
    const PxSourceElement &element = product.element();
    const PxSourceElement *size = element.firstChild("usablesize");
    m_products.append(
        {product.type(), product.isLegacy(), element.value("name"),
         file.place(element.rangeOf("name")), element.value(legacy),
         file.place(element.rangeOf(legacy)),
         isInOtherUnit ? QSize()
                       : product.description().usablePrintSize(PxPageType(PxPageTypeNormalPage), 0),
         file.place(size ? size->rangeOf("width") : element.nameRange)});
    if (product.type().isValid())
        m_files.insert(QFileInfo(file.path()).canonicalFilePath());
}

void PxCatalogueCheck::checkUnknownNames()
{
    // If no product type is known at all, the cause is not in the product files.
    if (m_names.isEmpty())
        return;
    std::set<PxProductType> described;
    QVector<const Product *> unknown;
    for (const Product &product : qAsConst(m_products)) {
        const bool isBroken = product.writtenName.trimmed().isEmpty() ||
                              PxProductCheck::isUnsafeForFile(product.writtenName);
        if (product.type.isValid())
            described.insert(product.type);
        else if (!isBroken)
            unknown.append(&product);
    }
    QStringList names;
    for (const PxProductType &type : m_names.types()) {
        if (described.count(type) == 0)
            names.append(type.productName());
    }
    PxKnownNames free(names);
    const QString now = "the file is skipped without a word";
    for (const Product *product : qAsConst(unknown)) {
        const QString &name = product->writtenName;
        if (!m_names.isListed(name))
            m_report
                .add(PxTag::ProductNameUnknown, product->name, "there is no product type \"%1\"",
                     name)
                .now(now)
                .hint([&] { return hintForUnknown(*product, free); });
        else if (!m_names.isChecked())
            m_report
                .add(PxTag::ProductNameUnknown, product->name,
                     "the row of \"%1\" in producttypes.xml is left out", name)
                .now(now)
                .hint("check producttypes.xml");
    }
}

/** A product that has a file, or that this one replaces, is not meant. */
QString PxCatalogueCheck::hintForUnknown(const Product &product, PxKnownNames &free) const
{
    const QString hint = free.hint(product.writtenName);
    const bool isOfOther =
        hint == PxSpelling::didYouMean(PxProductType(product.legacyName).productName());
    if (hint.isEmpty() && m_names.isAnyRepeated())
        return "two rows of producttypes.xml have the same name: is one of them meant for it?";
    if (hint.isEmpty() || isOfOther)
        return "add a row for it to producttypes.xml";
    return hint.endsWith(QLatin1Char('?')) ? hint + " If not, add a row to producttypes.xml" : hint;
}

void PxCatalogueCheck::run(bool isEveryFileRead)
{
    const bool isEveryNameOnce = checkNames();
    checkPredecessors();
    checkSizes();
    // A file that is not read, or has the name of another, has been reported, as has a catalogue
    // without product files.
    if (isEveryFileRead && isEveryNameOnce && !m_products.isEmpty() && isComplete())
        checkTypesHaveFiles();
}

/** Whether no product has a second file. */
bool PxCatalogueCheck::checkNames() const
{
    bool isEveryNameOnce = true;
    QMap<PxProductType, const Product *> firsts;
    for (const Product &product : m_products) {
        if (!product.type.isValid())
            continue;
        const Product *&first = firsts[product.type];
        if (first) {
            const bool isSameKind = first->isLegacy == product.isLegacy;
            // The file that is named after the product is hardly the copy.
            const bool isFirstCopy = isSameKind && isNamedAfter(product.name.path, product.type) &&
                                     !isNamedAfter(first->name.path, product.type);
            const Product *copy = isFirstCopy ? std::exchange(first, &product) : &product;
            m_report
                .add(isSameKind ? PxTag::ProductNameTwice : PxTag::ProductCurrentAndLegacy,
                     copy->name, "%1 is also in %2", product.type.productName(), first->name)
                .now(isSameKind
                         ? "which of the two is used depends on the file system"
                         : "it is a current and an older product, each with its own description");
            isEveryNameOnce = false;
        }
        if (!first || first->isLegacy != product.isLegacy)
            first = &product;
    }
    return isEveryNameOnce;
}

void PxCatalogueCheck::checkPredecessors() const
{
    QMap<PxProductType, const Product *> successors;
    QMap<PxProductType, const Product *> currents;
    QMap<PxProductType, const Product *> olders;
    for (const Product &product : m_products)
        (product.isLegacy ? olders : currents).insert(product.type, &product);
    for (const Product &product : m_products) {
        const PxProductType legacy(product.legacyName);
        if (product.legacyName.trimmed().isEmpty() || m_names.isEmpty())
            continue;
        if (!legacy.isValid() && !m_names.isListed(product.legacyName))
            m_report
                .add(PxTag::LegacyUnknown, product.legacy, "\"%1\" is no known product name",
                     product.legacyName)
                .now("the product replaces no older one")
                .hint([&] { return m_names.hint(product.legacyName); });
        if (!legacy.isValid() || product.isLegacy || !product.type.isValid())
            continue;
        const Product *current = currents.value(legacy);
        if (current && !olders.contains(legacy)) {
            PxAddedFinding finding =
                legacy == product.type
                    ? m_report.add(PxTag::LegacyNotOlder, product.legacy, "%1 replaces itself",
                                   legacy.productName())
                    : m_report.add(PxTag::LegacyNotOlder, product.legacy, "%1 is still sold, in %2",
                                   legacy.productName(), current->name);
            finding.now("%1 is found as the product that replaces it", product.type.productName())
                .hint("name a product that is no longer sold, or leave \"legacy\" out");
            continue;
        }
        const Product *&other = successors[legacy];
        if (other && other->type != product.type)
            m_report
                .add(PxTag::LegacyClaimedTwice, product.legacy, "%1 is also replaced by %2, in %3",
                     legacy.productName(), other->type.productName(), other->legacy)
                .now("the one with the smaller code is found for it");
        else
            other = &product;
    }
}

void PxCatalogueCheck::checkSizes() const
{
    QMap<PxProductClass, QVector<qint64>> lengths;
    const auto isMeasured = [](const Product &product) {
        return product.type.isValid() && product.size.width() > 0 && product.size.height() > 0;
    };
    for (const Product &product : m_products) {
        if (isMeasured(product))
            lengths[product.type.productClass()].append(longerSide(product.size));
    }
    for (QVector<qint64> &ofClass : lengths)
        std::sort(ofClass.begin(), ofClass.end());
    for (const Product &product : m_products) {
        const QVector<qint64> &ofClass = lengths[product.type.productClass()];
        if (!isMeasured(product) ||
            !isFarOff(ofClass, longerSide(product.size), usualFactor(product.type)))
            continue;
        m_report
            .add(PxTag::SizeImplausible, product.width,
                 "%1 x %2 is far from the size of nearly all other products of its class, where "
                 "about %3 is usual for the longer side",
                 product.size.width(), product.size.height(), ofClass.at(ofClass.size() / 2))
            .now("the size is taken as it is")
            .hint("lengths are tenths of a millimetre");
    }
}

void PxCatalogueCheck::checkTypesHaveFiles() const
{
    QMap<PxProductType, PxPlace> left = m_types;
    for (const Product &product : m_products)
        left.remove(product.type);
    for (auto type = left.begin(); type != left.end(); ++type)
        m_report
            .add(PxTag::ProductTypeWithoutFile, *type, "no product file describes %1",
                 type.key().productName())
            .now("the product is known, but not offered");
}

/** Whether every product file of the catalogue gave a product. */
bool PxCatalogueCheck::isComplete() const
{
    for (const char *name : {"products", "products/legacy"}) {
        const QDir directory(PxDirectoryConfig::instance()->resource(QLatin1String(name), false));
        const QFileInfoList files =
            directory.entryInfoList(PxProductTypeDescriptionReader::fileFilter(), QDir::Files);
        for (const QFileInfo &file : files) {
            if (!m_files.contains(file.canonicalFilePath()))
                return false;
        }
    }
    return true;
}

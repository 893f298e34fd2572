#include "description/PxProductPropertiesInitializer.h"

#include "description/PxPageOrganizationCalculatorProductConfig.h"
#include "description/PxProductTypeConfigRegistry.h"
#include "description/PxProductTypeDescriptionReader.h"

#include <PxDirectoryConfig.h>
#include <PxMessage.h>
#include <PxPageOrganizationManager.h>
#include <PxProductCheckerRegistry.h>

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QString>
#include <QStringList>

namespace {

/**
 * Qt destroys its calendars, and the data with which it matches file names, in the reverse order of
 * their first use. Used when this library is loaded, they outlive the static objects of the
 * program, whose destructors may still ask any question.
 */
void keepWhatQtDestroys()
{
    QDir::match(QStringLiteral("*.xml"), QString());
    QDate::currentDate().toString(QStringLiteral("yyyy"));
}
Q_CONSTRUCTOR_FUNCTION(keepWhatQtDestroys)

/** Without this warning an application without products would go on silently. */
void warnOfMissingProducts()
{
    const auto *config = PxDirectoryConfig::instance();
    const QString products = config->resource(QStringLiteral("products"), true);
    if (!QFileInfo::exists(products)) // resource() has reported that
        return;
    const QStringList filter = PxProductTypeDescriptionReader::fileFilter();
    if (QDir(products).entryList(filter, QDir::Files).isEmpty()) {
        pxWarning() << "PxProductPropertiesInitializer::setupModule found no product file in"
                    << products;
        return;
    }
    const QString types = config->resource(QStringLiteral("producttypes.xml"), true);
    if (QFileInfo::exists(types))
        pxWarning() << "PxProductPropertiesInitializer::setupModule found no product on offer in"
                    << products << "with the product types of" << types;
}

} // namespace

PxProductPropertiesInitializer::~PxProductPropertiesInitializer() = default;

bool PxProductPropertiesInitializer::setupModule()
{
    PxPageOrganizationManager::instance()->addCalculator(
        new PxPageOrganizationCalculatorProductConfig);
    auto *registry = PxProductTypeConfigRegistry::instance();
    const bool isFirst = PxProductCheckerRegistry::instance()->registerChecker(registry);
    if (isFirst && registry->products().isEmpty())
        warnOfMissingProducts();
    return isFirst;
}

void PxProductPropertiesInitializer::teardownModule() {}

#include "description/PxProductPropertiesInitializer.h"

#include "description/PxPageOrganizationCalculatorProductConfig.h"
#include "description/PxProductTypeConfigRegistry.h"
#include "description/PxProductTypeDescriptionReader.h"

#include <PxDirectoryConfig.h>
#include <PxPageOrganizationManager.h>
#include <PxProductCheckerRegistry.h>

#include <QDate>
#include <QDebug>
#include <QDir>
#include <QFileInfo>
#include <QString>
#include <QStringList>

namespace {

/**
 * Qt destroys its calendars, and what it matches file names with, in reverse order of their first
 * use: used when this library is loaded, they outlive the static objects of the program, whose
 * destructors may still ask anything.
 */
void keepWhatQtDestroys()
{
    QDir::match(QStringLiteral("*.xml"), QString());
    QDate(2000, 1, 1).toString(QStringLiteral("yyyy"));
}
Q_CONSTRUCTOR_FUNCTION(keepWhatQtDestroys)

/** One line: an application without products would otherwise go on in silence. */
void warnOfMissingProducts()
{
    const auto *config = PxDirectoryConfig::instance();
    const QString products = config->resource(QStringLiteral("products"), true);
    if (!QFileInfo::exists(products)) // as resource() has reported
        return;
    const QStringList filter = PxProductTypeDescriptionReader::fileFilter();
    if (QDir(products).entryList(filter, QDir::Files).isEmpty()) {
        qWarning() << "PxProductPropertiesInitializer::setupModule found no product file in"
                   << products;
        return;
    }
    const QString types = config->resource(QStringLiteral("producttypes.xml"), true);
    if (QFileInfo::exists(types))
        qWarning() << "PxProductPropertiesInitializer::setupModule found no product on offer in"
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

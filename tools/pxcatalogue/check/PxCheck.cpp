#include "check/PxCheck.h"

#include "check/PxCatalogueCheck.h"
#include "check/PxDesignCheck.h"
#include "check/PxLayoutCheck.h"
#include "check/PxProductCheck.h"
#include "check/PxThemeCheck.h"
#include "check/PxVocabularyCheck.h"

#include <QFileInfo>

void PxCheck::run(PxFindings *findings)
{
    PxThemeCheck themes;
    checkThemes(&themes, findings);

    PxCatalogueCheck catalogue;
    if (!m_paths.productTypes.isEmpty()) {
        const PxCheckedFile file(m_paths.productTypes);
        checkReading(file, findings);
        if (file.isRead()) {
            PxVocabularyCheck(file, PxFileKind::ProductTypes).run(findings);
            catalogue.checkProductTypes(file, findings);
        }
    }
    if (!m_paths.frames.isEmpty()) {
        const PxCheckedFile file(m_paths.frames);
        checkReading(file, findings);
        if (file.isRead()) {
            PxVocabularyCheck(file, PxFileKind::Frames).run(findings);
            catalogue.checkFrames(file, findings);
        }
    }
    const PxDesignCheck design(themeIds(themes));
    checkProducts(m_paths.products, false, design, &catalogue, findings);
    checkProducts(m_paths.legacyProducts, true, design, &catalogue, findings);
    checkUserDefaults(design, findings);
    findings->setPartial(!m_paths.isCatalogue);
    if (m_paths.isCatalogue) {
        catalogue.finish(findings);
        themes.finish(findings);
    }
    checkStrays(findings);
}

void PxCheck::checkThemes(PxThemeCheck *check, PxFindings *findings)
{
    for (const QString &path : m_paths.themes) {
        const PxCheckedFile file(path);
        checkReading(file, findings);
        m_isThemeMissing = m_isThemeMissing || !file.isRead();
        if (!file.isRead())
            continue;
        PxVocabularyCheck(file, PxFileKind::Theme).run(findings);
        check->checkFile(file, findings);
    }
}

void PxCheck::checkProducts(const QStringList &paths, bool isLegacy, const PxDesignCheck &design,
                            PxCatalogueCheck *catalogue, PxFindings *findings)
{
    for (const QString &path : paths) {
        const PxCheckedFile file(path);
        checkReading(file, findings);
        if (!file.isRead())
            continue;
        PxVocabularyCheck(file, PxFileKind::Product).run(findings);
        if (!file.root()->firstChild(QStringLiteral("product"))) {
            file.add(findings, "product-element-missing", file.root()->nameRange,
                     QStringLiteral("no \"product\" element below \"%1\"").arg(file.root()->name),
                     QStringLiteral("nothing is read from this file"));
            continue;
        }
        const PxCheckedProduct product(file, isLegacy);
        PxProductCheck(product).run(findings);
        PxLayoutCheck(product).run(findings);
        design.checkProduct(product, findings);
        catalogue->addProduct(product);
    }
}

void PxCheck::checkUserDefaults(const PxDesignCheck &design, PxFindings *findings)
{
    for (const QString &path : m_paths.userDefaults) {
        const PxCheckedFile file(path);
        checkReading(file, findings);
        if (!file.isRead())
            continue;
        PxVocabularyCheck(file, PxFileKind::UserDefaults).run(findings);
        design.checkUserDefaults(file, findings);
    }
}

/** Also of themes that are not checked themselves; none when not all can be known. */
QSet<QString> PxCheck::themeIds(const PxThemeCheck &checked) const
{
    PxThemeCheck others;
    PxFindings nobodysFindings;
    bool isComplete = !m_isThemeMissing;
    for (const QString &path : m_paths.knownThemes) {
        const PxCheckedFile file(path);
        isComplete = isComplete && file.isRead();
        if (file.isRead())
            others.checkFile(file, &nobodysFindings);
    }
    return isComplete ? checked.ids() + others.ids() : QSet<QString>();
}

void PxCheck::checkStrays(PxFindings *findings) const
{
    for (const QString &path : m_paths.strays) {
        const QFileInfo file(path);
        findings->add("file-not-read", {path},
                      file.isFile() ? QStringLiteral("the library does not read this file")
                                    : QStringLiteral("this is no regular file"),
                      QStringLiteral("the library passes it over"),
                      file.isFile() ? QStringLiteral("files that are read end in \".xml\"")
                                    : QString());
    }
}

void PxCheck::checkReading(const PxCheckedFile &file, PxFindings *findings)
{
    ++m_fileCount;
    file.checkReading(findings);
    file.findAllowances(findings);
}

#pragma once

#include "check/catalogue/PxCatalogueCheck.h"
#include "check/catalogue/PxCheckPaths.h"
#include "check/catalogue/PxThemeProductsCheck.h"
#include "check/layout/PxProductPages.h"
#include "check/source/PxKeptFiles.h"
#include "check/themes/PxThemeIdCheck.h"
#include "check/words/PxImageNames.h"
#include "check/words/PxKnownNames.h"
#include "format/PxFormatRows.h"

#include <geometry/PxPageContext.h>

#include <QMap>

/** Runs all checks over the files of a catalogue, one file after the other. */
class PxCheck
{
public:
    /**
     * The library knows its directories. The findings must outlive the check. Files of products are
     * kept for later if there is something that keeps them.
     */
    PxCheck(const PxCheckPaths &paths, PxFindings &findings, PxKeptFiles *kept = nullptr);

    void run();
    int fileCount() const { return m_fileCount; }
    int productCount() const { return m_productCount; }
    int legacyProductCount() const { return m_legacyProductCount; }
    int themeCount() const { return m_themeCount; }

private:
    template <typename CheckFile>
    bool checkFiles(const QStringList &paths, PxFileKind kind, CheckFile checkFile);
    static void addWrongRoot(const PxSourceElement &root, PxFileKind kind,
                             const PxReporter &report);
    void checkThemes();
    void checkProductTypes(const PxCheckedFile &file);
    void checkProduct(const PxCheckedFile &file, bool isLegacy);
    void noticePages(const PxCheckedProduct &product, const PxProductPages &pages);
    void noticeThemes(const PxCheckedFile &file, const PxSourceElement &parent);
    PxReporter reporterFor(const PxCheckedFile &file) const;

    const PxCheckPaths m_paths;
    PxFindings &m_findings;
    PxKeptFiles *m_kept;
    int m_fileCount = 0;
    int m_productCount = 0;
    int m_legacyProductCount = 0;
    int m_themeCount = 0;
    // What files are compared with. Some count the guesses that they have made in this run.
    PxListedProductTypes m_types;
    PxKnownNames m_themeIds;                                 // empty if not all are known
    QMap<QString, QVector<PxPageContext>> m_pagesOfProducts; // of those checked so far, by name
    PxPlace m_namedTheme; // the first in a product; without a path if there is none
    PxImageNames m_images{PxImageNames::Kind::Any};
    PxImageNames m_themeImages{PxImageNames::Kind::Lower};
    PxThemeIdCheck m_themes;
    PxThemeProductsCheck m_themeProducts;
    PxCatalogueCheck m_catalogue;
};

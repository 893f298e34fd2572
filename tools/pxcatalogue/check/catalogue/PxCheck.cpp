#include "check/catalogue/PxCheck.h"

#include "check/catalogue/PxCatalogueCheck.h"
#include "check/catalogue/PxFramesCheck.h"
#include "check/design/PxDesignCheck.h"
#include "check/layout/PxLayoutCheck.h"
#include "check/product/PxProductCheck.h"
#include "check/rules/PxFormatCheck.h"
#include "check/source/PxReadAhead.h"
#include "check/themes/PxThemeCheck.h"
#include "check/words/PxSpelling.h"

#include <QFileInfo>

namespace {

QStringList single(const QString &path)
{
    return path.isEmpty() ? QStringList() : QStringList(path);
}

/** For a document element without a product. */
QString hintForProductOf(const PxSourceElement &root)
{
    const QString name = QStringLiteral("product");
    QStringList children;
    for (const PxSourceElement *child : root.children) {
        if (child->firstChild(name))
            return QStringLiteral("move \"product\" out of \"%1\", directly below \"%2\"")
                .arg(child->name, root.name);
        children.append(child->name);
    }
    const QString misspelt = PxSpelling::nearest(name, children);
    return misspelt.isEmpty() ? QString()
                              : QStringLiteral("write \"product\" for \"%1\"").arg(misspelt);
}

/** Whether the library reads something from the file: else most checks have nothing to look at. */
bool isUnderstood(const PxCheckedFile &file, PxFileKind kind)
{
    const PxSourceElement *root = file.root();
    if (!root)
        return false;
    const PxSourceElement *product = root->firstChild(QStringLiteral("product"));
    switch (kind) {
    case PxFileKind::Product:
        return product && PxProductType(product->value(QStringLiteral("name"))).isValid();
    case PxFileKind::Theme:
        return root->name.toLower() == QLatin1String("themes");
    case PxFileKind::ProductTypes:
        return root->name == QLatin1String("producttypes");
    case PxFileKind::UserDefaults:
        return file.document().firstChild().isElement();
    default:
        return true;
    }
}

} // namespace

void PxCheck::run(PxFindings *findings)
{
    PxThemeCheck themes;
    addKnownThemes(&themes);
    const bool isEveryThemeRead =
        checkFiles(m_paths.themes, PxFileKind::Theme, findings,
                   [&](const PxCheckedFile &file) { themes.checkFile(file, findings); });
    PxCatalogueCheck catalogue;
    checkFiles(single(m_paths.productTypes), PxFileKind::ProductTypes, findings,
               [&](const PxCheckedFile &file) { catalogue.checkProductTypes(file, findings); });
    checkFiles(single(m_paths.frames), PxFileKind::Frames, findings,
               [&](const PxCheckedFile &file) { PxFramesCheck(file).run(findings); });
    const QStringList themeIds = isEveryThemeRead ? themes.ids() : QStringList();
    if (themeIds.isEmpty())
        findings->setNotChecked(QStringLiteral("defaults-theme-unknown"),
                                m_paths.themes.isEmpty() && m_paths.knownThemes.isEmpty()
                                    ? QStringLiteral("without a theme file")
                                    : QStringLiteral("without the id of every theme"));
    PxDesignCheck design{PxKnownNames(themeIds)};
    for (const QStringList *paths : {&m_paths.products, &m_paths.legacyProducts})
        checkFiles(*paths, PxFileKind::Product, findings, [&](const PxCheckedFile &file) {
            checkProduct(file, paths == &m_paths.legacyProducts, &design, &catalogue, findings);
        });
    checkFiles(m_paths.userDefaults, PxFileKind::UserDefaults, findings,
               [&](const PxCheckedFile &file) { design.checkUserDefaults(file, findings); });
    findings->setPartial(!m_paths.isCatalogue);
    if (m_paths.isCatalogue) {
        catalogue.finish(findings);
        themes.finish(findings);
    }
    checkStrays(findings);
}

/** What every file is checked for, and then `checkFile`. Answers whether all could be read. */
template <typename CheckFile>
bool PxCheck::checkFiles(const QStringList &paths, PxFileKind kind, PxFindings *findings,
                         CheckFile checkFile)
{
    if (paths.isEmpty())
        return true; // without a thread that has nothing to read
    bool isEveryRead = true;
    PxReadAhead files(paths);
    for (int i = 0; i < paths.size(); ++i) {
        ++m_fileCount;
        const PxCheckedFile &file = files.next();
        file.checkReading(findings);
        file.findAllowances(findings, isUnderstood(file, kind));
        isEveryRead = isEveryRead && file.isRead();
        if (!file.isRead())
            continue;
        PxFormatCheck(file, kind).run(findings);
        checkFile(file);
    }
    return isEveryRead;
}

void PxCheck::checkProduct(const PxCheckedFile &file, bool isLegacy, PxDesignCheck *design,
                           PxCatalogueCheck *catalogue, PxFindings *findings) const
{
    const PxSourceElement &root = *file.root();
    if (!root.firstChild(QStringLiteral("product"))) {
        file.add(findings, "product-element-missing", root.nameRange,
                 QStringLiteral("no \"product\" element below \"%1\"").arg(root.name),
                 QStringLiteral("nothing is read from this file"), hintForProductOf(root));
        return;
    }
    const PxCheckedProduct product(file, isLegacy);
    const PxPageEntries pages(product);
    // What is wrong with a row of producttypes.xml is told there.
    const bool areTypesChecked = !m_paths.productTypes.isEmpty();
    PxProductCheck(product, pages, areTypesChecked).run(findings);
    PxLayoutCheck(product, pages).run(findings);
    design->checkProduct(product, findings);
    catalogue->addProduct(product);
}

/** Themes that are not checked themselves. */
void PxCheck::addKnownThemes(PxThemeCheck *themes) const
{
    for (const QString &path : m_paths.knownThemes)
        themes->addKnownFile(PxCheckedFile(path));
}

void PxCheck::checkStrays(PxFindings *findings) const
{
    const QMap<QString, int> &undecodable = m_paths.undecodableNames;
    for (auto it = undecodable.begin(); it != undecodable.end(); ++it)
        findings->add(
            "file-name-undecodable", {it.key()},
            QStringLiteral("names of XML files that are not in the encoding of the locale: "
                           "%1")
                .arg(*it),
            QStringLiteral("the library passes them over"),
            QStringLiteral("rename them; an archive may have been unpacked in another "
                           "encoding"));
    for (const QString &path : m_paths.strays) {
        const QFileInfo file(path);
        QString message = QStringLiteral("the library does not read this file");
        QString hint = QStringLiteral("files that are read end in \".xml\"");
        if (file.isSymLink() && !file.exists()) {
            message = QStringLiteral("this link leads nowhere");
            hint = QStringLiteral("mend the link, or take it out");
        } else if (!file.isFile()) {
            message = file.isDir() ? QStringLiteral("this is a directory")
                                   : QStringLiteral("this is no regular file");
            hint = QStringLiteral("move it elsewhere");
        } else if (file.isHidden()) {
            message = QStringLiteral("this file is hidden, as its name begins with a dot");
            hint = QStringLiteral("take the dot out of the name, or move the file elsewhere");
        }
        findings->add("file-not-read", {path}, message,
                      QStringLiteral("the library passes it over"), hint);
    }
}

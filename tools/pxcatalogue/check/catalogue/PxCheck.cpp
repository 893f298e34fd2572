#include "check/catalogue/PxCheck.h"

#include "check/catalogue/PxDirectoriesCheck.h"
#include "check/catalogue/PxProductTypesCheck.h"
#include "check/design/PxDefaultsCheck.h"
#include "check/design/PxDesignCheck.h"
#include "check/design/PxUserDefaultsCheck.h"
#include "check/findings/PxAllowanceComments.h"
#include "check/layout/PxBarcodeCheck.h"
#include "check/layout/PxNumberListCheck.h"
#include "check/layout/PxProductPages.h"
#include "check/layout/PxRedirectCheck.h"
#include "check/layout/PxSurroundingCheck.h"
#include "check/product/PxClassCheck.h"
#include "check/product/PxMarginCheck.h"
#include "check/product/PxPagesCheck.h"
#include "check/product/PxProductCheck.h"
#include "check/product/PxSizeCheck.h"
#include "check/product/PxSpineCheck.h"
#include "check/rules/PxFormatCheck.h"
#include "check/rules/PxReadingCheck.h"
#include "check/rules/PxRuleCheck.h"
#include "check/source/PxReadAhead.h"
#include "check/source/PxSourceParts.h"
#include "check/themes/PxThemeFileCheck.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <QFileInfo>

#include <algorithm>

namespace {

QStringList single(const QString &path)
{
    return path.isEmpty() ? QStringList() : QStringList(path);
}

/** For a document element without a product. */
QString hintForProductOf(const PxSourceElement &root)
{
    constexpr const char *name = "product";
    QStringList children;
    for (const PxSourceElement *child : root.children) {
        if (child->firstChild(name))
            return QString("move \"product\" out of \"%1\", directly below \"%2\"")
                .arg(child->name, root.name);
        children.append(child->name);
    }
    const QString misspelt = PxSpelling::nearest(name, children);
    return misspelt.isEmpty() ? QString() : QString("write \"product\" for \"%1\"").arg(misspelt);
}

/** For a file whose document element is that of another kind, in the directory of this kind. */
QString hintForKind(const QString &root, PxFileKind kind)
{
    constexpr struct
    {
        PxFileKind kind;
        const char *place;
    } places[] = {
        {PxFileKind::Product, "\"products\""},
        {PxFileKind::Theme, "\"themes\""},
        {PxFileKind::UserDefaults, "the user defaults"},
        {PxFileKind::ProductTypes, "the resource directory, as \"producttypes.xml\""},
        {PxFileKind::Frames, "the resource directory, as \"frames.xml\""},
    };
    for (const auto &row : places) {
        if (row.kind != kind &&
            root.compare(QLatin1String(PxFormat::root(row.kind).name), Qt::CaseInsensitive) == 0)
            return QString("move it to %1").arg(row.place);
    }
    return QString();
}

/** Whether the library reads something from the file: most checks are skipped if it does not. */
bool isUnderstood(const PxCheckedFile &file, PxFileKind kind)
{
    const PxSourceElement *root = file.root();
    if (!root || !PxFormatCheck::isOfKind(*root, kind))
        return false;
    switch (kind) {
    case PxFileKind::Product:
        return PxProductType(root->firstChild("product")->value("name")).isValid();
    case PxFileKind::UserDefaults:
        return file.document().firstChild().isElement();
    default:
        return true;
    }
}

/** Whether no product lies in a place where it is not read, but was probably meant to be. */
bool isEveryProductRead(const PxCheckPaths &paths)
{
    return std::all_of(paths.unreadDirectories.begin(), paths.unreadDirectories.end(),
                       [](const auto &directory) {
                           return directory.kind == PxUnreadDirectory::Kind::Inside;
                       }) &&
           std::all_of(paths.misplacedFiles.begin(), paths.misplacedFiles.end(),
                       [](const auto &file) { return file.kind != PxFileKind::Product; });
}

QSet<QString> foldedNames(const QStringList &names)
{
    QSet<QString> folded;
    for (const QString &name : names)
        folded.insert(name.trimmed().toCaseFolded());
    return folded;
}

/** None for user defaults: their rules are those of the default templates in products, too. */
PxRows<PxRule> rulesOf(PxFileKind kind)
{
    switch (kind) {
    case PxFileKind::Product:
        return productRules();
    case PxFileKind::Theme:
        return themeRules();
    case PxFileKind::Frames:
        return frameRules();
    default:
        return {};
    }
}

} // namespace

PxCheck::PxCheck(const PxCheckPaths &paths, PxFindings &findings, PxKeptFiles *kept)
    : m_paths(paths)
    , m_findings(findings)
    , m_kept(kept)
    , m_types(!paths.productTypes.isEmpty())
    , m_themes(PxReporter(findings))
    , m_themeProducts(PxReporter(findings))
    , m_catalogue(m_types, PxReporter(findings))
{}

void PxCheck::run()
{
    checkThemes();
    // That it is missing is reported with the directories.
    const bool hasTypes = QFileInfo::exists(m_paths.productTypes);
    checkFiles(single(hasTypes ? m_paths.productTypes : QString()), PxFileKind::ProductTypes,
               [this](const PxCheckedFile &file) { checkProductTypes(file); });
    checkFiles(single(m_paths.frames), PxFileKind::Frames, [](const PxCheckedFile &) {});
    checkFiles(m_paths.products, PxFileKind::Product,
               [this](const PxCheckedFile &file) { checkProduct(file, false); });
    checkFiles(m_paths.legacyProducts, PxFileKind::Product,
               [this](const PxCheckedFile &file) { checkProduct(file, true); });
    checkFiles(m_paths.userDefaults, PxFileKind::UserDefaults, [this](const PxCheckedFile &file) {
        PxUserDefaultsCheck(m_pagesOfProducts, m_themeIds, reporterFor(file)).run();
        noticeThemes(file, *file.root());
    });
    m_findings.setPartial(!m_paths.isCatalogue);
    m_catalogue.checkUnknownNames();
    if (m_paths.isCatalogue) {
        m_catalogue.run(isEveryProductRead(m_paths));
        m_themes.run();
        m_themeProducts.run();
    }
    PxDirectoriesCheck(m_paths,
                       {foldedNames(m_pagesOfProducts.keys()), m_themes.ids(), m_namedTheme},
                       PxReporter(m_findings))
        .run();
}

/** Checks what is the same for all files, then calls `checkFile`. Whether all could be read. */
template <typename CheckFile>
bool PxCheck::checkFiles(const QStringList &paths, PxFileKind kind, CheckFile checkFile)
{
    if (paths.isEmpty())
        return true; // and start no thread for nothing
    using Checked = PxAllowanceComments::Checked;
    bool isEveryRead = true;
    PxReadAhead files(paths);
    for (int i = 0; i < paths.size(); ++i) {
        ++m_fileCount;
        const auto &read = files.next();
        if (m_kept && kind == PxFileKind::Product)
            m_kept->keep(read);
        const PxCheckedFile &file = *read;
        const PxReporter report = reporterFor(file);
        PxReadingCheck(report).run();
        PxAllowanceComments(file, m_findings)
            .find(isUnderstood(file, kind) ? Checked::Everything : Checked::Little);
        isEveryRead = isEveryRead && file.isRead();
        const PxSourceElement *root = file.root();
        if (!root)
            continue;
        if (!PxFormatCheck::isOfKind(*root, kind)) {
            addWrongRoot(*root, kind, report);
            continue;
        }
        PxFormatCheck(*root, kind, report).run();
        PxRuleCheck(*root, PxFormat::root(kind), rulesOf(kind), report).run();
        checkFile(file);
    }
    return isEveryRead;
}

void PxCheck::addWrongRoot(const PxSourceElement &root, PxFileKind kind, const PxReporter &report)
{
    const QString elsewhere = hintForKind(root.name, kind);
    if (kind == PxFileKind::Product) {
        report
            .add(PxTag::ProductElementMissing, root.nameRange,
                 "no \"product\" element below \"%1\"", root.name)
            .now("nothing is read from this file")
            .hint(elsewhere.isEmpty() ? hintForProductOf(root) : elsewhere);
        return;
    }
    const bool isTheme = kind == PxFileKind::Theme;
    report
        .add(isTheme ? PxTag::ThemeRootWrong : PxTag::ProductTypesRootWrong, root.nameRange,
             "the document element is \"%1\", not \"%2\"", root.name, PxFormat::root(kind).name)
        .now(isTheme ? "nothing is read from this file" : "no product is known")
        .hint(elsewhere);
}

void PxCheck::checkThemes()
{
    for (const QString &path : m_paths.knownThemes)
        m_themes.addKnownFile(PxCheckedFile(path));
    const bool isEveryRead =
        checkFiles(m_paths.themes, PxFileKind::Theme, [this](const PxCheckedFile &file) {
            m_themeCount += file.root()->children.size();
            m_themes.addFile(file);
            m_themeProducts.addThemes(file);
            PxThemeFileCheck(*file.root(), m_types, m_themeImages, reporterFor(file)).run();
        });
    m_themeIds = PxKnownNames(isEveryRead ? m_themes.ids() : QStringList());
    if (m_themeIds.isEmpty())
        m_findings.setNotChecked(PxTag::DefaultsThemeUnknown,
                                 m_paths.themes.isEmpty() && m_paths.knownThemes.isEmpty()
                                     ? "without a theme file"
                                     : "without the id of every theme");
}

void PxCheck::checkProductTypes(const PxCheckedFile &file)
{
    PxProductTypesCheck check(reporterFor(file));
    check.run();
    m_catalogue.setProductTypes(check.places());
}

void PxCheck::checkProduct(const PxCheckedFile &file, bool isLegacy)
{
    ++(isLegacy ? m_legacyProductCount : m_productCount);
    const PxReporter report = reporterFor(file);
    const PxCheckedProduct product(file, isLegacy);
    PxProductCheck(product, report).run();
    PxClassCheck(product, report).run();
    PxSizeCheck size(product, report);
    size.run();
    PxMarginCheck(product, report).run();
    PxPagesCheck(product, report).run();
    PxSpineCheck(product, report).run();
    const PxProductPages pages(product);
    PxRedirectCheck(product, pages, report).run();
    PxSurroundingCheck(product, pages, size.isInOtherUnit(), m_images, report).run();
    PxBarcodeCheck(product, pages, size.isInOtherUnit(), m_images, report).run();
    PxNumberListCheck(product, pages, report).run();
    PxDefaultsCheck(product.element(), m_themeIds, pages.contexts(), report).run();
    PxDesignCheck(product, report).run();
    noticeThemes(file, product.element());
    noticePages(product, pages);
    m_catalogue.addProduct(product, size.isInOtherUnit());
    m_themeProducts.addProduct(product, size.isInOtherUnit());
}

/** Remembers what user defaults are compared with; no pages if files of the same name differ. */
void PxCheck::noticePages(const PxCheckedProduct &product, const PxProductPages &pages)
{
    const QString name = product.element().value("name");
    const QVector<PxPageContext> contexts = pages.contexts();
    const bool isSecond = m_pagesOfProducts.contains(name);
    QVector<PxPageContext> &known = m_pagesOfProducts[name];
    if (!isSecond)
        known = contexts;
    else if (contexts != known)
        known.clear();
}

/** Remembers where default templates in the parent first name a theme other than the default one.
 */
void PxCheck::noticeThemes(const PxCheckedFile &file, const PxSourceElement &parent)
{
    const PxSourceElement *container = parent.firstChild("defaults");
    if (!container || !m_namedTheme.path.isEmpty())
        return;
    for (const PxSourceElement *entry : container->childrenNamed("defaults")) {
        for (const PxSourcePart &part :
             PxSourceParts::ofAttribute(file, entry->attribute("theme")).parts) {
            const QString id = part.text.trimmed();
            if (id.isEmpty() || id == "normal")
                continue;
            m_namedTheme = file.place(part.range);
            return;
        }
    }
}

PxReporter PxCheck::reporterFor(const PxCheckedFile &file) const
{
    return PxReporter(m_findings, file);
}

#include "check/design/PxUserDefaultsCheck.h"

#include "check/design/PxDefaultsCheck.h"
#include "check/words/PxEditDistance.h"
#include "check/words/PxSpelling.h"

#include <PxProductType.h>

#include <QFileInfo>

#include <algorithm>

namespace {

const auto suffix = QLatin1String(".xml");

/** The longest of the names that the file name goes on from, as in "NAME_OLD". */
QString beginningOf(const QString &fileName, const QStringList &names)
{
    QString longest;
    for (const QString &name : names) {
        if (name.size() > longest.size() && name.size() < fileName.size() &&
            fileName.startsWith(name, Qt::CaseInsensitive) &&
            !fileName.at(name.size()).isLetterOrNumber())
            longest = name;
    }
    return longest;
}

/** A copy has the name of the product with something behind it, which no other name is as near as.
 */
QString hintFor(const QString &fileName, const QStringList &names)
{
    const QString beginning = beginningOf(fileName, names);
    const QString nearest = PxSpelling::nearest(fileName, names);
    const bool isNearer =
        !nearest.isEmpty() &&
        (beginning.isEmpty() || PxEditDistance::between(fileName.toUpper(), nearest.toUpper()) < 3);
    const QString meant = isNearer ? nearest : beginning;
    return meant.isEmpty() ? QString() : PxSpelling::didYouMean(meant);
}

} // namespace

void PxUserDefaultsCheck::run()
{
    checkName();
    if (checkStart())
        PxDefaultsCheck(*m_report.file().root(), m_themeIds, m_products.value(productName()),
                        m_report)
            .run();
}

QString PxUserDefaultsCheck::productName() const
{
    const QString fileName = QFileInfo(m_report.file().path()).fileName();
    return fileName.endsWith(suffix, Qt::CaseInsensitive) ? fileName.chopped(suffix.size())
                                                          : fileName;
}

void PxUserDefaultsCheck::checkName() const
{
    const bool isSuffix = m_report.file().path().endsWith(suffix);
    const QString name = productName();
    if (isSuffix && m_products.contains(name))
        return;
    const QStringList names = m_products.keys();
    const auto similar = std::find_if(names.begin(), names.end(), [&](const QString &product) {
        return product.compare(name, Qt::CaseInsensitive) == 0;
    });
    QString message;
    QString hint;
    if (similar != names.end()) {
        message = QString("the file is named otherwise than the product \"%1\"").arg(*similar);
        hint = QString("name it \"%1\"").arg(*similar + suffix);
    } else if (!PxProductType(name).isValid()) {
        message = QString("\"%1\" is no product").arg(name);
        hint = isSuffix ? hintFor(name, names) : "files that are read end in \".xml\"";
    } else {
        return; // its file is broken, or is not checked
    }
    m_report.add(PxTag::UserDefaultsWithoutProduct, PxSourceRange{0, 0}, message)
        .now("the library does not look for this file")
        .hint(hint);
}

/** Whether the library finds the entries: nothing may stand above the first element. */
bool PxUserDefaultsCheck::checkStart() const
{
    // The library takes the first node for the element that holds the container.
    const QDomNode first = m_report.file().document().firstChild();
    if (first.isElement())
        return true;
    const QString text = m_report.file().source().text();
    const int begin = qMax(0, text.indexOf(QLatin1Char('<')));
    const int end = text.indexOf(QLatin1Char('>'), begin) + 1;
    const QString what = first.isComment() ? PxSourceNode::kindText(PxSourceNode::Kind::Comment)
                         : first.isDocumentType() ? "a document type"
                         : text.midRef(begin).startsWith(QLatin1String("<?xml "))
                             ? "an XML declaration"
                             : PxSourceNode::kindText(PxSourceNode::Kind::ProcessingInstruction);
    m_report
        .add(PxTag::UserDefaultsUnreadable, PxSourceRange{begin, qMax(begin, end)},
             what + " above the first element")
        .now("nothing is found in this file")
        .hint("take it out; without a declaration the file is UTF-8");
    return false;
}

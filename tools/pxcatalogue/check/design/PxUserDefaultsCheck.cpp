#include "check/design/PxUserDefaultsCheck.h"

#include "check/design/PxDefaultsCheck.h"
#include "check/words/PxSpelling.h"

#include <PxProductType.h>

#include <QFileInfo>

#include <algorithm>

void PxUserDefaultsCheck::run()
{
    checkName();
    if (checkStart())
        PxDefaultsCheck(*m_report.file().root(), m_themeIds, {}, m_report).run();
}

void PxUserDefaultsCheck::checkName() const
{
    const QString fileName = QFileInfo(m_report.file().path()).fileName();
    const QString suffix = ".xml";
    const bool isSuffix = fileName.endsWith(suffix);
    const QString name =
        fileName.endsWith(suffix, Qt::CaseInsensitive) ? fileName.chopped(suffix.size()) : fileName;
    if (isSuffix && m_productNames.contains(name))
        return;
    QStringList names(m_productNames.begin(), m_productNames.end());
    names.sort();
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
        hint = isSuffix ? PxSpelling::hint(name, names) : "files that are read end in \".xml\"";
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

#include "check/design/PxUserDefaultsCheck.h"

#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <PxProductType.h>

#include <QFileInfo>

#include <algorithm>

void PxUserDefaultsCheck::checkName(PxFindings *findings) const
{
    const QString fileName = QFileInfo(m_file.path()).fileName();
    const QString suffix = QStringLiteral(".xml");
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
        message =
            QStringLiteral("the file is named otherwise than the product \"%1\"").arg(*similar);
        hint = QStringLiteral("name it \"%1\"").arg(*similar + suffix);
    } else if (!PxProductType(name).isValid()) {
        message = QStringLiteral("\"%1\" is no product").arg(name);
        hint = isSuffix ? PxSpelling::hint(name, names)
                        : QStringLiteral("files that are read end in \".xml\"");
    } else {
        return; // a product whose file is broken, or not among the files that are checked
    }
    m_file.add(findings, "user-defaults-without-product", {0, 0}, message,
               QStringLiteral("the library does not look for this file"), hint);
}

bool PxUserDefaultsCheck::checkStart(PxFindings *findings) const
{
    // As the library does: the first node is meant to be the element that holds the container.
    const QDomNode first = m_file.document().firstChild();
    if (first.isElement())
        return true;
    const QString text = m_file.source().text();
    const int begin = qMax(0, text.indexOf(QLatin1Char('<')));
    const int end = text.indexOf(QLatin1Char('>'), begin) + 1;
    const QString what = first.isComment()        ? PxMessageText::kind(PxSourceNode::Kind::Comment)
                         : first.isDocumentType() ? QStringLiteral("a document type")
                         : text.midRef(begin).startsWith(QLatin1String("<?xml "))
                             ? QStringLiteral("an XML declaration")
                             : PxMessageText::kind(PxSourceNode::Kind::ProcessingInstruction);
    m_file.add(findings, "user-defaults-unreadable", {begin, qMax(begin, end)},
               what + QStringLiteral(" above the first element"),
               QStringLiteral("nothing is found in this file"),
               QStringLiteral("take it out; without a declaration the file is UTF-8"));
    return false;
}

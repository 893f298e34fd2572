#include "check/catalogue/PxProductTypesCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <QRegularExpression>

namespace {

PxElementReading readingOf(const PxSourceElement &row)
{
    return PxElementReading(row, *PxFormat::find(PxFileKind::ProductTypes, "producttype"));
}

} // namespace

void PxProductTypesCheck::run()
{
    const PxSourceElement &root = *m_report.file().root();
    const QVector<const PxSourceElement *> rows = root.childrenNamed("producttype");
    for (const PxSourceElement *row : rows)
        checkRow(*row);
    if (!checkMisplaced(root) && rows.isEmpty())
        m_report.add(PxTag::ProductsNone, root.nameRange, "no product type is listed")
            .now("no product is known, and every product file is skipped");
}

/** Reports rows whose element is misspelt, or is in another element. */
bool PxProductTypesCheck::checkMisplaced(const PxSourceElement &root) const
{
    constexpr const char *row = "producttype";
    bool isAnyFound = false;
    const auto report = [&](const PxSourceElement &element, const QString &message,
                            const QString &hint) {
        m_report.add(PxTag::ProductTypeRowDropped, element.nameRange, message)
            .now("the product type is left out")
            .hint(hint);
        isAnyFound = true;
    };
    for (const PxSourceElement *child : root.children) {
        const bool isRow =
            child->attribute("name") && (child->attribute("code") || child->attribute("class"));
        const bool isNear = PxSpelling::isNear(child->name, row);
        if (child->name != row && (isNear || isRow))
            report(*child, QString("\"%1\" is no \"%2\"").arg(child->name, row),
                   isNear ? PxSpelling::didYouMean(row) : QString("write \"%1\"").arg(row));
        for (const PxSourceElement *inner : child->childrenNamed(row))
            report(*inner, QString("\"%1\" in \"%2\" is not read").arg(row, child->name),
                   QString("move it directly below \"%1\"").arg(root.name));
    }
    return isAnyFound;
}

void PxProductTypesCheck::checkRow(const PxSourceElement &row)
{
    const QString codeText = row.value("code");
    const int code = row.number("code");
    const QString name = row.value("name").trimmed();
    const QString key = name.toCaseFolded();
    if (!readingOf(row).isReadable("code"))
        return; // the row is left out, which the check of the value reports
    if (code < 1) {
        drop(row, "code",
             codeText.isEmpty() ? "the product type has no \"code\"" : "\"%1\" is no code above 0",
             codeText);
    } else if (name.isEmpty()) {
        drop(row, "name", "the product type has no \"name\"");
    } else if (m_rowOfCode.contains(code)) {
        drop(row, "code", "%1 has the code %2, too",
             m_report.place(m_rowOfCode.value(code)->nameRange), code);
    } else if (m_rowOfName.contains(key)) {
        drop(row, "name", "%1 has the name \"%2\", too",
             m_report.place(m_rowOfName.value(key)->nameRange), name);
    } else if (PxFormat::decode(PxKeywordSet::ProductClass, row.value("class")) ==
               PxProductClassUnknown) {
        dropClass(row);
    } else {
        m_rowOfCode.insert(code, &row);
        m_rowOfName.insert(key, &row);
        m_places.insert(PxProductType(code), m_report.place(row.rangeOf("name")));
        checkStyle(row, name);
    }
}

template <typename... Arguments>
PxAddedFinding PxProductTypesCheck::drop(const PxSourceElement &row, const char *attribute,
                                         const QString &message,
                                         const Arguments &...arguments) const
{
    const PxMissingPart missing = readingOf(row).missing(attribute);
    return m_report.add(PxTag::ProductTypeRowDropped, missing.range, message, arguments...)
        .now("the product type is left out")
        .hint(missing.hint);
}

void PxProductTypesCheck::dropClass(const PxSourceElement &row) const
{
    const QString text = row.value("class");
    const QStringList classes = PxFormat::keywordNames(PxKeywordSet::ProductClass);
    const bool isEmpty = text.trimmed().isEmpty();
    PxAddedFinding dropped =
        drop(row, "class",
             isEmpty ? "the product type has no \"class\"" : "\"%1\" is no product class", text);
    if (!isEmpty)
        dropped.hint([&] { return PxSpelling::hintOrAll(text, classes); });
    else if (!readingOf(row).isMisspelt("class"))
        dropped.hint("it is one of %1", classes.join(", "));
}

void PxProductTypesCheck::checkStyle(const PxSourceElement &row, const QString &name) const
{
    static const QRegularExpression ourStyle("^[A-Z0-9_]+$");
    if (!ourStyle.match(name).hasMatch())
        m_report
            .add(PxTag::ProductTypeNameUnsafe, row.rangeOf("name"),
                 "\"%1\" is not all upper-case ASCII letters, digits and \"_\"", name)
            .now("the product is found by the name in any case");
    if (row.value("shortname").isEmpty())
        m_report
            .add(PxTag::ProductTypeShortnameMissing, row.rangeOf("shortname"),
                 row.attribute("shortname") ? "the \"shortname\" of the product type is empty"
                                            : "the product type has no \"shortname\"")
            .now("\"%1\" is shown", name);
}

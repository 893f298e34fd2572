#include "check/layout/PxNumberListCheck.h"

#include "check/PxCheckLimits.h"
#include "check/rules/PxElementReading.h"
#include "check/source/PxSourceParts.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"
#include "format/PxFormat.h"

#include <PxListParts.h>
#include <geometry/PxProductionExtraPageGroup.h>

#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>

namespace {

/** What a list without a number means. */
QString absence(const PxSourceElement &list)
{
    const QString path = list.name == QLatin1String("target_pages")
                             ? "product/extra_production_pages/item/target_pages"
                             : QLatin1String("product/") + list.name;
    return QString::fromUtf8(PxFormat::find(PxFileKind::Product, path)->absent);
}

bool isNumber(QStringView text)
{
    bool isOne = false;
    static_cast<void>(text.toInt(&isOne));
    return isOne;
}

/** Makes no list, which might take much memory. */
int countNumbers(const QString &list)
{
    int count = 0;
    pxForEachPart(list, [&count](QStringView part) { count += isNumber(part) ? 1 : 0; });
    return count;
}

/** A hint for numbers with another separator than the comma. */
QString separated(const QString &part)
{
    const QStringList words = PxSpelling::words(part);
    const bool areNumbers = std::all_of(
        words.begin(), words.end(), [](const QString &word) { return !pxIntList(word).isEmpty(); });
    return words.size() > 1 && areNumbers ? words.join(QLatin1Char(',')) : QString();
}

/** For two numbers with a dash between them. */
QString pagesOfRange(const QString &part)
{
    static const QRegularExpression ourRange("^\\s*([0-9]{1,4})\\s*[-–]\\s*([0-9]{1,4})\\s*$");
    constexpr int maximum = 20; // a hint is no long list
    const QRegularExpressionMatch range = ourRange.match(part);
    const int first = range.captured(1).toInt();
    const int last = range.captured(2).toInt();
    QStringList pages;
    for (int page = first; range.hasMatch() && page <= last && last - first < maximum; ++page)
        pages.append(QString::number(page));
    return pages.join(QLatin1Char(','));
}

QString separatorHint(const QString &part)
{
    const QString numbers = separated(part);
    const QString range = pagesOfRange(part);
    if (!range.isEmpty())
        return QString("name each page: \"%1\"").arg(range);
    return numbers.isEmpty()
               ? QString()
               : QString("separate with commas: \"%1\"").arg(PxMessageText::shortened(numbers));
}

} // namespace

void PxNumberListCheck::run()
{
    const PxSourceElement &product = m_product.element();
    if (const auto *list = product.firstChild("pageswithcontent")) {
        checkParts(*list);
        checkPagesWithContent(*list);
    }
    const auto *numbering = product.firstChild("productionnumbering");
    if (numbering && checkParts(*numbering))
        checkNumbering(*numbering);
    if (const auto *extra = product.firstChild("extra_production_pages")) {
        const auto items = extra->childrenNamed("item");
        for (const auto *item : items)
            checkExtraPage(*item);
        checkTargetPages(items);
    }
}

bool PxNumberListCheck::checkParts(const PxSourceElement &list) const
{
    const PxSourceList source = PxSourceParts::ofText(m_product.file(), list);
    const QVector<PxSourcePart> &parts = source.parts;
    const int numbers = countNumbers(list.dom.text());
    const QString now =
        numbers > 0
            ? QString("it is left out: %1 of %2 parts are read").arg(numbers).arg(source.count)
            : QString("the list holds no number then, which means: %1").arg(absence(list));
    bool isSound = true;
    for (int i = 0; i < parts.size(); ++i) {
        const QString text = parts[i].text.trimmed();
        // An empty part at the end loses nothing, and an empty text is the default.
        if (!pxIntList(parts[i].text).isEmpty() || (text.isEmpty() && i == source.count - 1))
            continue;
        isSound = false;
        m_report
            .add(PxTag::NumberListPartDropped, parts[i].range,
                 text.isEmpty() ? "part %2 of \"%3\" is empty" : "\"%1\" is no whole number", text,
                 i + 1, list.name)
            .now(now)
            .hint([&] { return separatorHint(text); })
            .replacement([&] { return separated(text); });
    }
    return isSound;
}

/** Checks the numbers of a list, which may be only some of those that belong together. */
void PxNumberListCheck::checkPages(const PxSourceElement &list, const PxPageNumberCheck &check,
                                   const QString &now) const
{
    const PxSourceList source = PxSourceParts::ofText(m_product.file(), list);
    for (const PxSourcePart &part : source.parts) {
        const QList<int> number = pxIntList(part.text); // one or none
        if (number.isEmpty() || !check.isMissing(number.constFirst()))
            continue;
        PxAddedFinding finding = check.add(number.constFirst(), part.range);
        finding.now(now);
        if (!check.areFromOne())
            continue;
        finding.hint([&] {
            QStringList numbers;
            for (const int given : pxIntList(list.dom.text()).mid(0, PxCheckLimits::quotedLength))
                numbers.append(QString::number(check.fromZero(given)));
            return QString("pages count from 0: \"%1\"")
                .arg(PxMessageText::shortened(numbers.join(QLatin1Char(','))));
        });
    }
}

void PxNumberListCheck::checkPagesWithContent(const PxSourceElement &list) const
{
    const QVector<int> numbers = pxIntList(list.dom.text()).toVector();
    const PxPageNumberCheck check(m_pages, numbers, m_report);
    const bool isAnyPage = std::any_of(numbers.begin(), numbers.end(),
                                       [&](int number) { return !check.isMissing(number); });
    checkPages(list, check,
               isAnyPage ? "the number changes nothing" : "no page of the product takes content");
}

void PxNumberListCheck::checkTargetPages(const QVector<const PxSourceElement *> &items) const
{
    QVector<int> numbers;
    QVector<const PxSourceElement *> lists;
    for (const PxSourceElement *item : items) {
        if (const PxSourceElement *list = item->firstChild("target_pages")) {
            lists.append(list);
            numbers += pxIntList(list->dom.text()).toVector();
        }
    }
    const PxPageNumberCheck check(m_pages, numbers, m_report);
    for (const PxSourceElement *list : lists)
        checkPages(*list, check, "production gets the file for a page that does not exist");
}

void PxNumberListCheck::checkNumbering(const PxSourceElement &list) const
{
    const PxSourceList source = PxSourceParts::ofText(m_product.file(), list);
    const QList<int> given = pxIntList(list.dom.text());
    // Each part is a number, or an empty one behind the last.
    if (!source.isWhole() || given.isEmpty())
        return;
    if (!checkRepeated(source.parts, given) && m_pages.isKnown())
        checkContinued(source.parts.at(given.size() - 1), given);
}

/** Whether it found a number that two pages have. What follows the last page is not used. */
bool PxNumberListCheck::checkRepeated(const QVector<PxSourcePart> &parts,
                                      const QList<int> &given) const
{
    const int used = m_pages.isKnown() ? qMin(given.size(), m_pages.lastPage() + 1) : given.size();
    QMap<int, int> pages; // by number
    bool isAnyRepeated = false;
    for (int page = 0; page < used; ++page) {
        const int number = given.at(page);
        if (!pages.contains(number)) {
            pages.insert(number, page);
            continue;
        }
        isAnyRepeated = true;
        m_report
            .add(PxTag::ProductionNumberRepeated, parts.at(page).range,
                 "the number %1 is in the list twice", number)
            .now("production gives it to page %1 and to page %2", pages.value(number), page)
            .hint("give each page a number of its own");
    }
    return isAnyRepeated;
}

/** Behind the list, numbers go on from its last one and may meet earlier ones. */
void PxNumberListCheck::checkContinued(const PxSourcePart &last, const QList<int> &given) const
{
    const QList<int> all = m_product.description().productionNumberingList(m_pages.lastPage() + 1);
    const QList<int> continued = all.mid(given.size());
    const QSet<int> known(given.begin(), given.end());
    const auto again = std::find_if(continued.begin(), continued.end(),
                                    [&](int number) { return known.contains(number); });
    if (again == continued.end())
        return;
    m_report
        .add(PxTag::ProductionNumberRepeated, last.range,
             "the list ends with %1, which is not its largest number", given.constLast())
        .now("numbering goes on from there: %1 is given twice", *again)
        .hint("add the number that it shall go on with: %1",
              qint64(*std::max_element(given.begin(), given.end())) + 1);
}

void PxNumberListCheck::checkExtraPage(const PxSourceElement &item) const
{
    const auto *pages = item.firstChild("target_pages");
    const auto *pdf = item.firstChild("pdf");
    const PxProductionExtraPageGroup group(item.dom);
    const bool hasTarget = !group.targetPages().isEmpty();
    // If no number is left, what follows is reported, not the parts.
    if (hasTarget && !checkParts(*pages))
        return;
    const auto add = [&](const PxMissingPart &missing, const char *message, const char *name = "") {
        const int count = group.targetPages().size();
        m_report.add(PxTag::ExtraPageIncomplete, missing.range, message, name)
            .now(count == 1 ? "production gets the file \"%1\" for %2 target page"
                            : "production gets the file \"%1\" for %2 target pages",
                 group.content().filename(), count)
            .hint(missing.hint);
    };
    if (!pages || !pdf) {
        using Search = PxElementReading::Search;
        const char *name = pages ? "pdf" : "target_pages";
        const bool isListed = m_report.hasRoom(PxTag::ExtraPageIncomplete);
        add(PxElementReading(item).missingChild(name,
                                                isListed ? Search::Everywhere : Search::Inside),
            "no \"%1\"", name);
    } else if (!hasTarget) {
        const PxMissingPart text = PxElementReading(*pages).missingText();
        add({text.range, text.hintOr("pages are whole numbers, as in \"0,2\"")}, "no target page");
    } else if (group.content().filename().trimmed().isEmpty()) {
        add(PxElementReading(*pdf).missing("filename"), "no file name");
    }
}

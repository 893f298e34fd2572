#include "check/product/PxSpineCheck.h"

#include "check/rules/PxElementReading.h"
#include "check/words/PxEditDistance.h"
#include "check/words/PxMessageText.h"
#include "check/words/PxSpelling.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <limits>

namespace {

constexpr const char *pagesName = "pages";
constexpr const char *width = "width";
constexpr const char *maxFontHeight = "maxfontheight";

int widthOf(const PxSourceElement &spine)
{
    return spine.number(width);
}

/** Whether one digit of the number has to be taken out to get the other one. */
bool isWithDigitTooMany(int number, int wanted)
{
    const QString text = QString::number(number);
    const QString other = QString::number(wanted);
    return text.size() == other.size() + 1 && PxEditDistance::between(text, other) == 1;
}

/** If not, the check of names and values reports it. */
bool isWidthKnown(const PxSourceElement &spine)
{
    const PxElementReading reading(spine);
    return reading.isReadable(width) && !reading.isMisspelt(width);
}

} // namespace

PxSpineCheck::PxSpineCheck(const PxCheckedProduct &product, const PxReporter &report)
    : m_product(product)
    , m_report(report)
    , m_table(product.element().firstChild("spines"))
{}

void PxSpineCheck::run()
{
    if (!checkClass())
        return;
    readTable();
    checkPresence();
    checkSpinePage();
    checkWidths();
    checkTextHeights();
    // If one page count is unclear, the steps of the table are, too.
    if (!m_product.type().isBook() || m_spines.isEmpty() || !m_isComplete)
        return;
    checkLength();
    checkSteps();
    checkSellingPages();
}

/** Whether the table may be used: only a book has the page counts that it lists. */
bool PxSpineCheck::checkClass() const
{
    if (!m_table)
        return true;
    const PxPageEntries &pages = m_product.pages();
    const QList<int> offered = m_product.description().offeredPageCounts();
    if (m_product.type().isBook() || !m_product.type().isValid() || offered.isEmpty() ||
        (pages.isGiven() && !pages.isSound()))
        return true;
    const auto spines = m_table->childrenNamed("spine");
    const auto isForProduct = [&](const PxSourceElement *spine) {
        return spine->number(pagesName) == offered.constFirst();
    };
    if (spines.isEmpty() ||
        (pages.spine() && std::any_of(spines.begin(), spines.end(), isForProduct)))
        return true;
    m_report
        .add(PxTag::SpinesNotUsed, m_table->nameRange, "\"spines\" of a product that is no book")
        .now(pages.spine() ? "its page count is %1, for which the table has no spine"
                           : "the product has no spine, and its page count is %1",
             offered.constFirst())
        .hint("take the table out, or give the product type the class \"book\"");
    return false;
}

void PxSpineCheck::readTable()
{
    if (!m_table)
        return;
    QVector<Row> rows;
    for (const PxSourceElement *spine : m_table->childrenNamed("spine")) {
        ++m_rowCount;
        readPageCount(*spine, &rows);
    }
    // A child of another name was meant for a row.
    m_isComplete = rows.size() == m_table->children.size();
    const Misfit misfit = m_isComplete ? findMisfit(rows) : Misfit();
    const Row asWritten = rows.value(misfit.row);
    if (misfit.row >= 0)
        rows[misfit.row].pageCount = misfit.wanted;
    for (const Row &row : qAsConst(rows)) {
        if (m_spines.contains(row.pageCount)) {
            m_isComplete = false; // most likely one of the two is meant for another page count
            addTwice(row, *m_spines.value(row.pageCount), "keep the one that is meant");
        }
        m_spines.insert(row.pageCount, row.spine);
    }
    if (misfit.row >= 0)
        addMisfit(asWritten, misfit.wanted);
}

void PxSpineCheck::readPageCount(const PxSourceElement &spine, QVector<Row> *rows) const
{
    const PxElementReading reading(spine);
    const int pageCount = reading.number(pagesName);
    if (pageCount > 0) {
        rows->append({pageCount, &spine});
        return;
    }
    if (!reading.isReadable(pagesName))
        return;
    const PxMissingPart missing = reading.missing(pagesName);
    m_report
        .add(PxTag::SpinePagesMissing, missing.range,
             reading.isGiven(pagesName) ? "a spine for %1 pages" : "a spine without a page count",
             pageCount)
        .now("the smallest page count is %1", m_product.description().minPages())
        .hint(missing.hint);
}

/** The most frequent step from one row to the next; 0 if none is frequent. */
int PxSpineCheck::usualStepOf(const QVector<Row> &rows)
{
    QMap<qint64, int> frequencies;
    for (int i = 1; i < rows.size(); ++i)
        ++frequencies[qint64(rows[i].pageCount) - rows[i - 1].pageCount];
    const auto best = std::max_element(frequencies.begin(), frequencies.end());
    return best == frequencies.end() || *best < 2 || best.key() < 1 ? 0 : int(best.key());
}

/**
 * The only row whose page count is out of order in the file, if another one in its place is in step
 * with both neighbours. The order of the rows does not matter to the library, but shows which of
 * them is mistyped.
 */
PxSpineCheck::Misfit PxSpineCheck::findMisfit(const QVector<Row> &rows)
{
    const qint64 step = usualStepOf(rows);
    const auto countOf = [&](int row) { return qint64(rows[row].pageCount); };
    const auto isFall = [](const Row &a, const Row &b) { return a.pageCount >= b.pageCount; };
    const auto fall = std::adjacent_find(rows.begin(), rows.end(), isFall);
    if (step == 0 || fall == rows.end() ||
        std::adjacent_find(fall + 1, rows.end(), isFall) != rows.end())
        return {};
    const int first = int(fall - rows.begin());
    const int last = rows.size() - 1;
    for (const int row : {first, first + 1}) {
        if (row > 0 && row < last && countOf(row - 1) + 2 * step == countOf(row + 1))
            return {row, int(countOf(row - 1) + step)};
    }
    // At either end, a row that is in step with another one may just stand at another place.
    const bool isFirst = first == 0;
    const qint64 own = countOf(isFirst ? 0 : last);
    const qint64 wanted = isFirst ? countOf(1) - step : countOf(last - 1) + step;
    const bool isInStep = std::any_of(rows.begin(), rows.end(), [&](const Row &row) {
        return std::abs(row.pageCount - own) == step;
    });
    const bool isEnd = isFirst || first + 1 == last;
    return !isEnd || isInStep || fall->pageCount == (fall + 1)->pageCount || wanted < 1 ||
                   wanted > std::numeric_limits<int>::max()
               ? Misfit()
               : Misfit{isFirst ? 0 : last, int(wanted)};
}

/** One finding for all that follows from a mistyped page count. */
void PxSpineCheck::addMisfit(const Row &row, int wanted) const
{
    const QString hint = PxSpelling::didYouMean(QString::number(wanted));
    if (const PxSourceElement *other = m_spines.value(row.pageCount)) {
        addTwice(row, *other, hint);
        return;
    }
    m_report
        .add(PxTag::SpineStepsIrregular, row.spine->rangeOf(pagesName),
             "%1 pages where the rows before and after it leave room for %2", row.pageCount, wanted)
        .now(nowOfSteps() + (hasWidth() ? QString("; the spine for %1 pages is %2 wide")
                                              .arg(wanted)
                                              .arg(m_product.description().spineWidth(wanted))
                                        : QString()))
        .hint(hint);
}

void PxSpineCheck::addTwice(const Row &row, const PxSourceElement &other, const QString &hint) const
{
    m_report
        .add(PxTag::SpinePagesTwice, row.spine->rangeOf(pagesName),
             "a second spine for %1 pages, %2 wide; the one in %3 is %4", row.pageCount,
             widthOf(*row.spine), m_report.place(other.rangeOf(pagesName)), widthOf(other))
        .now("the later one is used, as a spine of %1",
             m_product.description().spineWidth(row.pageCount))
        .hint(hint);
}

void PxSpineCheck::checkPresence() const
{
    if (!m_product.type().isBook() || m_rowCount > 0)
        return;
    const PxMissingPart missing =
        m_table ? PxElementReading(*m_table).missingEntries()
                : PxElementReading(m_product.element()).missingChild("spines");
    m_report
        .add(PxTag::BookWithoutPageCounts, missing.range,
             m_table ? "the \"spines\" of this book hold no \"spine\""
                     : "a book without \"spines\"")
        .now("no page count is offered, and applications get numbers that are none")
        .hint(missing.hintOr(
            m_product.isLikeCalendar()
                ? "give the product type the class \"calendar\", or add a \"spine\" for each page "
                  "count"
                : "add a \"spine\" for each page count, with the width 0 when none is printed"));
}

void PxSpineCheck::checkLength() const
{
    if (m_rowCount < 3)
        m_report
            .add(PxTag::SpineTableShort, m_table->nameRange, "a book with %1 page counts",
                 m_rowCount)
            .now("only these are offered, and applications get a step that is none")
            .hint("give three page counts or more");
}

/** The most frequent step; if two are equally frequent, the one that the library takes. */
int PxSpineCheck::usualStep() const
{
    QHash<int, int> frequencies;
    for (auto it = std::next(m_spines.begin()); it != m_spines.end(); ++it)
        ++frequencies[it.key() - std::prev(it).key()];
    int usual = m_product.description().pageIncrement();
    for (auto it = frequencies.constBegin(); it != frequencies.constEnd(); ++it) {
        const int best = frequencies.value(usual);
        if (it.value() > best || (it.value() == best && it.key() < usual &&
                                  usual != m_product.description().pageIncrement()))
            usual = it.key();
    }
    return usual;
}

void PxSpineCheck::checkSteps() const
{
    if (m_spines.size() < 3)
        return;
    const int usual = usualStep();
    int before = usual;
    int inStep = m_spines.firstKey();
    bool isRegular = true;
    // The last step is free.
    for (auto it = std::next(m_spines.begin()); it != std::prev(m_spines.end()); ++it) {
        const int smaller = std::prev(it).key();
        const int step = it.key() - smaller;
        // The page count before this one was wrong, and has been reported.
        const bool isBackInStep = smaller != inStep && it.key() - inStep == 2LL * usual;
        // A table that goes on in other steps is reported once.
        if (step != usual && step != before && !isBackInStep)
            addIrregularStep(it, usual);
        isRegular = isRegular && step == usual;
        before = isBackInStep ? usual : step;
        if (isBackInStep || step == usual)
            inStep = it.key();
    }
    if (isRegular)
        checkLastStep(usual);
}

/** The step to the page count from the one before it. */
void PxSpineCheck::addIrregularStep(Spines::const_iterator spine, int usual) const
{
    const int smaller = std::prev(spine).key();
    const qint64 wanted = qint64(smaller) + usual;
    m_report
        .add(PxTag::SpineStepsIrregular, spine.value()->rangeOf(pagesName),
             "%1 pages after %2, where most steps are %3", spine.key(), smaller, usual)
        .now(nowOfSteps() + nowWithoutSpine(smaller, spine.key()))
        .hint(std::next(spine).key() == wanted + usual
                  ? PxSpelling::didYouMean(QString::number(wanted))
              : wanted < spine.key() ? QString("add a spine for %1 pages").arg(wanted)
                                     : QString());
}

QString PxSpineCheck::nowOfSteps() const
{
    const PxProductTypeDescription &book = m_product.description();
    return QString("the page counts go from %1 to %2 in steps of %3")
        .arg(book.minPages())
        .arg(book.maxPages())
        .arg(book.pageIncrement());
}

/** For the first page count that is offered between two rows of the table. */
QString PxSpineCheck::nowWithoutSpine(int smaller, int larger) const
{
    const PxProductTypeDescription &book = m_product.description();
    const qint64 between = qint64(smaller) + book.pageIncrement();
    return between < larger && hasWidth() && (between - book.minPages()) % book.pageIncrement() == 0
               ? QString("; the spine for %1 pages is %2 wide")
                     .arg(between)
                     .arg(book.spineWidth(int(between)))
               : QString();
}

/** A last step that is too long leaves out page counts. */
void PxSpineCheck::checkLastStep(int usual) const
{
    const auto last = std::prev(m_spines.end());
    const int smaller = std::prev(last).key();
    // Three entries without a width may stand for all that lie between them.
    if (last.key() - usual <= smaller || (!hasWidth() && m_spines.size() < 4))
        return;
    const bool isMistyped = isWithDigitTooMany(last.key(), smaller + usual);
    m_report
        .add(isMistyped ? PxTag::SpineStepsIrregular : PxTag::SpineLastStepLong,
             last.value()->rangeOf(pagesName), "%1 pages after %2, where other steps are %3",
             last.key(), smaller, usual)
        .now(hasWidth() ? QString("the spine for %1 pages is %2 wide")
                              .arg(smaller + usual)
                              .arg(m_product.description().spineWidth(smaller + usual))
                        : nowOfSteps())
        .hint(isMistyped ? "did you mean \"%1\"?" : "add a spine for %1 pages", smaller + usual);
}

bool PxSpineCheck::hasWidth() const
{
    return std::any_of(m_spines.begin(), m_spines.end(),
                       [](const PxSourceElement *spine) { return widthOf(*spine) > 0; });
}

void PxSpineCheck::checkWidths() const
{
    if (!hasWidth())
        return;
    auto narrower = m_spines.end();
    int before = 0; // the width before that
    for (auto it = m_spines.begin(); it != m_spines.end(); ++it) {
        const PxSourceElement &spine = *it.value();
        const int own = widthOf(spine);
        if (!isWidthKnown(spine))
            continue;
        if (own <= 0) {
            m_report
                .add(PxTag::SpineWidthMissing, spine.rangeOf(width),
                     spine.attribute(width) ? "a spine of the width %1" : "a spine without a width",
                     own)
                .now("the spine for %1 pages is %2 wide", it.key(),
                     m_product.description().spineWidth(it.key()));
            continue;
        }
        const int other = narrower == m_spines.end() ? 0 : widthOf(*narrower.value());
        if (own < other && m_isComplete) {
            const auto next = std::next(it);
            const bool isOtherTooWide = before > 0 && own >= before && next != m_spines.end() &&
                                        widthOf(*next.value()) < other;
            if (isOtherTooWide)
                addFall(narrower, it, "a spine of %1 for %2 pages, but one of %3 for more in %4");
            else
                addFall(it, narrower, "a spine of %1 for %2 pages, but one of %3 for fewer in %4");
        }
        before = other;
        narrower = it;
    }
    checkEnds();
}

/**
 * Reports a first or last width that is far from what the others lead to. All between them have a
 * neighbour on either side and fall.
 */
void PxSpineCheck::checkEnds() const
{
    constexpr int minimumRows = 5; // fewer do not show what is usual
    if (m_spines.size() < minimumRows || !m_isComplete ||
        !std::all_of(m_spines.begin(), m_spines.end(), [](const PxSourceElement *spine) {
            return isWidthKnown(*spine) && widthOf(*spine) > 0;
        }))
        return;
    const auto last = std::prev(m_spines.end());
    checkEnd(m_spines.begin(), std::next(m_spines.begin()),
             steepest(std::next(m_spines.begin()), last));
    checkEnd(last, std::prev(last), steepest(m_spines.begin(), std::prev(last)));
}

/** The largest growth for a page from one row to the next, up to and with the last one. */
double PxSpineCheck::steepest(Spines::const_iterator first, Spines::const_iterator last)
{
    double steepest = 0;
    for (auto it = first; it != last; ++it) {
        const auto next = std::next(it);
        steepest = std::max(steepest, growth(it, next));
    }
    return steepest;
}

/** For a page, from one row to another one. */
double PxSpineCheck::growth(Spines::const_iterator from, Spines::const_iterator to)
{
    return (double(widthOf(*to.value())) - widthOf(*from.value())) /
           (double(to.key()) - from.key());
}

void PxSpineCheck::checkEnd(Spines::const_iterator end, Spines::const_iterator neighbour,
                            double steepest) const
{
    // A few widths for all page counts make steps that differ, too.
    constexpr int timesSteeper = 10;
    constexpr int timesWider = 3;
    const int own = widthOf(*end.value());
    const int other = widthOf(*neighbour.value());
    const double jump = std::abs(double(own) - other);
    const bool isFar = growth(end, neighbour) > timesSteeper * steepest && 3 * jump > other;
    const bool isWide = std::max(own, other) > double(timesWider) * std::min(own, other);
    if (!isFar || (steepest <= 0 && !isWide))
        return;
    m_report
        .add(PxTag::SpineWidthJumps, end.value()->rangeOf(width),
             "a spine of %1 for %2 pages beside one of %3 for %4 in %5", own, end.key(), other,
             neighbour.key(), m_report.place(neighbour.value()->rangeOf(width)))
        .now("the spine for %1 pages is %2 wide", end.key(),
             m_product.description().spineWidth(end.key()))
        .hint([&] {
            const auto first = m_spines.begin();
            const auto last = std::prev(m_spines.end());
            const double step =
                growth(end == first ? neighbour : first, end == last ? neighbour : last);
            return QString("with the other rows it grows to %1")
                .arg(qRound64(other + step * (double(end.key()) - neighbour.key())));
        });
}

/** A spine that does not fit beside the other one. */
void PxSpineCheck::addFall(Spines::const_iterator spine, Spines::const_iterator other,
                           const char *message) const
{
    m_report
        .add(PxTag::SpineWidthFalls, spine.value()->rangeOf(width), message,
             widthOf(*spine.value()), spine.key(), widthOf(*other.value()),
             m_report.place(other.value()->rangeOf(width)))
        .now("the spine for %1 pages is %2 wide", spine.key(),
             m_product.description().spineWidth(spine.key()));
}

void PxSpineCheck::checkTextHeights() const
{
    for (auto it = m_spines.begin(); it != m_spines.end(); ++it) {
        // The width of the library includes what it adds, where type may stand, too.
        const int spineWidth = m_product.description().spineWidth(it.key());
        const int height = m_product.description().spineMaxFontHeight(it.key());
        if (widthOf(*it.value()) > 0 && height > spineWidth)
            m_report
                .add(PxTag::SpineTextTooHigh, it.value()->rangeOf(maxFontHeight),
                     "type of the height %1 on a spine of %2", height, widthOf(*it.value()))
                .now("type may be %1 high on a spine that is %2 wide", height, spineWidth);
    }
}

void PxSpineCheck::checkSellingPages() const
{
    constexpr const char *attribute = "defaultSellingPages";
    const int pageCount = m_product.description().defaultSellingPages();
    if (!PxElementReading(m_product.element()).isNumber(attribute) || pageCount == -1 ||
        m_spines.contains(pageCount))
        return;
    const auto next = m_spines.lowerBound(pageCount);
    QStringList near;
    if (next != m_spines.begin())
        near.append(QString::number(std::prev(next).key()));
    if (next != m_spines.end())
        near.append(QString::number(next.key()));
    m_report
        .add(PxTag::SellingPagesNotOffered, m_product.element().rangeOf(attribute),
             "%1 is no page count of \"spines\"", pageCount)
        .now("a new book has %1 pages, and a spine of %2", pageCount,
             m_product.description().spineWidth(pageCount))
        .hint("the nearest: %1", near.join(", "));
}

void PxSpineCheck::checkSpinePage() const
{
    const bool isBookWithoutTable = m_product.type().isBook() && m_rowCount == 0;
    if (m_product.pages().spine() && !hasWidth() && !isBookWithoutTable && isEveryWidthReadable())
        addPageWithoutTable(*m_product.pages().spine());
    if (m_table && m_product.pages().isGiven() && m_product.pages().isSound() &&
        !m_product.description().hasSpine() && hasWidth())
        addWithoutPage(*m_table);
}

/** A book of any other binding may well have a table with widths, and no spine to print on. */
void PxSpineCheck::addWithoutPage(const PxSourceElement &table) const
{
    constexpr auto bound =
        static_cast<PxBindingEnum>(PxBindingHardcover | PxBindingSoftcover | PxBindingCromolinen |
                                   PxBindingLeather | PxBindingArtificialLeather);
    const bool isBound =
        m_product.type().isBook() && m_product.description().binding().matches(bound);
    m_report
        .add(isBound ? PxTag::PagesSpineMissing : PxTag::SpineWithoutPage,
             isBound ? m_product.pages().read().constFirst().range : table.nameRange,
             "spines with a width, but \"pages\" lists no spine")
        .now("the product has no spine; a cover half is %1 wide",
             m_product.description().coverSize().width())
        .hint(isBound ? "begin with back cover, spine, front cover"
                      : "add \"spine\" to the pages, or give the width 0");
}

bool PxSpineCheck::isEveryWidthReadable() const
{
    return m_isComplete &&
           std::all_of(m_spines.begin(), m_spines.end(), [](const PxSourceElement *spine) {
               return PxElementReading(*spine).isReadable(width);
           });
}

/** Says in one finding that the width has another name and what follows from it. */
void PxSpineCheck::addPageWithoutTable(const PxPageEntry &spinePage) const
{
    const PxMissingPart missing = m_spines.isEmpty()
                                      ? PxElementReading(m_product.element()).missingChild("spines")
                                      : PxElementReading(*m_spines.first()).missing(width);
    m_report
        .add(PxTag::SpinePageWithoutTable, missing.hint.isEmpty() ? spinePage.range : missing.range,
             "a spine among the pages, but no width in \"spines\"")
        .now("the spine is %1 wide",
             m_product.description().spineWidth(m_spines.isEmpty() ? 0 : m_spines.firstKey()))
        .hint(missing.hintOr("give its width, or take the spine out"));
}

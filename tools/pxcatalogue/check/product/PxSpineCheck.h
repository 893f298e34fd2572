#pragma once

#include "check/findings/PxReporter.h"
#include "check/source/PxCheckedProduct.h"

#include <QMap>

/** Checks the table of page counts and spines, and what depends on it. */
class PxSpineCheck
{
public:
    /** The product must outlive the check. */
    PxSpineCheck(const PxCheckedProduct &product, const PxReporter &report);

    void run();

private:
    using Spines = QMap<int, const PxSourceElement *>;
    struct Row
    {
        int pageCount = 0;
        const PxSourceElement *spine = nullptr;
    };
    /** A row with a mistyped page count, and the one that is probably meant. */
    struct Misfit
    {
        int row = -1; ///< -1 for none
        int wanted = 0;
    };

    bool checkClass() const;
    void readTable();
    void readPageCount(const PxSourceElement &spine, QVector<Row> *rows) const;
    static int usualStepOf(const QVector<Row> &rows);
    static Misfit findMisfit(const QVector<Row> &rows);
    void addMisfit(const Row &row, int wanted) const;
    void addTwice(const Row &row, const PxSourceElement &other, const QString &hint) const;
    void checkPresence() const;
    void checkLength() const;
    void checkSteps() const;
    void addIrregularStep(Spines::const_iterator spine, int usual) const;
    QString nowOfSteps() const;
    QString nowWithoutSpine(int smaller, int larger) const;
    void checkLastStep(int usual) const;
    int usualStep() const;
    void checkWidths() const;
    void addFall(Spines::const_iterator spine, Spines::const_iterator other,
                 const char *message) const;
    void checkEnds() const;
    void checkEnd(Spines::const_iterator end, Spines::const_iterator neighbour,
                  double steepest) const;
    static double steepest(Spines::const_iterator first, Spines::const_iterator last);
    static double growth(Spines::const_iterator from, Spines::const_iterator to);
    void checkTextHeights() const;
    void checkSellingPages() const;
    void checkSpinePage() const;
    void addWithoutPage(const PxSourceElement &table) const;
    bool isEveryWidthReadable() const;
    void addPageWithoutTable(const PxPageEntry &spinePage) const;
    bool hasWidth() const;

    const PxCheckedProduct &m_product;
    const PxReporter m_report;
    const PxSourceElement *m_table; // null when there is none
    int m_rowCount = 0;
    /** The rows that the library uses, by page count; a mistyped one by the one that is meant. */
    Spines m_spines;
    bool m_isComplete = true; // the page count of every row is known and its own
};

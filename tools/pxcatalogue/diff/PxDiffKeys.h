#pragma once

#include "format/PxFormatRows.h"
#include "report/PxReportValue.h"

#include <QString>
#include <QStringList>
#include <QVector>

/** A value of an exported product or theme that is compared. */
struct PxDiffKey
{
    /** How a change of a length is called, or of both lengths of a size. */
    enum class Words { None, Width, Height, Size, Amount };

    const char *pointer; ///< with "*" for the index of a row; of a theme the member
    const char *label;
    PxReportFormat format = PxReportFormat::Plain;
    bool forCustomers = false; ///< whether customers notice a change, or only production does
    Words words = Words::None;

    /** For example "wider" or "narrower". */
    static QString word(Words words, bool isLarger);
};

/** A table of an exported product, whose rows are recognised though others come or go. */
struct PxDiffTable
{
    const char *section;
    const char *label;      ///< of a row, before what identifies it
    const char *identities; ///< sets of columns: rows that are equal in one are the same row

    QVector<QStringList> identityColumns() const;
};

/** What is compared, in the order in which changes are listed. */
class PxDiffKeys
{
public:
    static PxRows<PxDiffKey> ofProducts();
    static PxRows<PxDiffKey> ofThemes();
    static PxRows<PxDiffTable> tables();

    /** The keys and the sections that they are in, as --only takes them. */
    static QStringList all();
};

#include "check/words/PxKnownNames.h"

#include "check/PxCheckLimits.h"
#include "check/words/PxSpelling.h"

#include <algorithm>

PxKnownNames::PxKnownNames(const QStringList &names) : m_names(names)
{
    m_names.sort();
}

bool PxKnownNames::contains(const QString &name) const
{
    return std::binary_search(m_names.begin(), m_names.end(), name);
}

QString PxKnownNames::hint(const QString &name)
{
    // Estimated: names that are compared have about the same length.
    const qint64 length = qMin(name.size(), PxCheckLimits::comparedLength);
    m_compared += qMax<qint64>(1, length * length) * m_names.size();
    return m_compared <= PxCheckLimits::comparedLetters ? PxSpelling::hint(name, m_names)
                                                        : QString();
}

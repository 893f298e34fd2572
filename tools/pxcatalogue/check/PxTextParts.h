#pragma once

#include "check/PxSourceElement.h"

/** A part of a list and where it stands; where a part is empty, the place for it. */
struct PxTextPart
{
    QString text; ///< without blanks around it
    PxSourceRange range;
};

/** The comma-separated list that the text of an element is, with the place of each part. */
class PxTextParts
{
public:
    /** `source` is the text of the whole file. */
    PxTextParts(const QString &source, const PxSourceElement &element);

    const QVector<PxTextPart> &parts() const { return m_parts; }

private:
    QVector<PxTextPart> m_parts;
};

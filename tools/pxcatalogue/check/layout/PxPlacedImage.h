#pragma once

#include "check/findings/PxReporter.h"
#include "check/words/PxImageNames.h"

/** The image of an element, and the rectangle on the page that it gives as x, y, width, height. */
class PxPlacedImage
{
public:
    /** The element stands in a product file, and must outlive this. */
    explicit PxPlacedImage(const PxSourceElement &element) : m_element(element) {}

    /** `name` is what the library makes of the attribute "image". */
    void checkFile(const QString &name, PxImageNames &images, const PxReporter &report) const;
    /** Whether all given numbers of the rectangle can be read; if not, that has been reported. */
    bool isRectanglePlain() const;
    bool isAnyNumberGiven() const;
    /** Why the rectangle has no area, and where that stands. */
    QString fault() const;
    PxSourceRange placeOfFault() const;

private:
    const char *sideWithFault() const;

    const PxSourceElement &m_element;
};

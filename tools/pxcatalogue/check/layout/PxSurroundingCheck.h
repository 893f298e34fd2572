#pragma once

#include "check/findings/PxReporter.h"
#include "check/layout/PxProductPages.h"
#include "check/words/PxImageNames.h"

/** Checks the images round the pages: whether each is ever painted, and where its element says. */
class PxSurroundingCheck
{
public:
    /** All must outlive the check. No rectangle is compared with a size in another unit. */
    PxSurroundingCheck(const PxCheckedProduct &product, const PxProductPages &pages,
                       bool isInOtherUnit, PxImageNames &images, const PxReporter &report);

    void run();

private:
    struct Surrounding
    {
        const PxSourceElement *element;
        PxSurroundingDescription description;
        bool isPlain;
    };
    /** Whether a surrounding is used by any page. */
    struct Use
    {
        bool isFitting = false;
        bool isUsed = false;
        int hiddenBy = -1;
        bool isHiddenByDoubtful = false;
    };

    void checkImage(const Surrounding &surrounding) const;
    void checkFrame(const Surrounding &frame) const;
    void checkUse() const;
    QVector<PxSurroundingKey> keys() const;
    QVector<Use> uses(const QVector<PxSurroundingKey> &keys) const;
    QRect rectOf(const PxSurroundingKey &page) const;
    void checkPlace(const Surrounding &surrounding, const QVector<PxSurroundingKey> &keys) const;
    void reportUnfit(const Surrounding &surrounding) const;
    void reportHidden(const Surrounding &surrounding, const Surrounding &by) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    const bool m_isInOtherUnit;
    PxImageNames &m_images;
    const PxReporter m_report;
    QVector<Surrounding> m_surroundings; // in the order in which the library asks them
};

#pragma once

#include "check/source/PxCheckedProduct.h"

class PxProductPages;

/** Checks the images round the pages: whether each is ever painted, and as its element says. */
class PxSurroundingCheck
{
public:
    /** Both must outlive the check. */
    PxSurroundingCheck(const PxCheckedProduct &product, const PxProductPages &pages);

    void run(PxFindings *findings) const;

private:
    struct Surrounding
    {
        const PxSourceElement *element;
        PxSurroundingDescription description;
        bool isPlain;
    };
    /** What becomes of a surrounding when all pages have been asked for theirs. */
    struct Use
    {
        bool isFitting = false;
        bool isUsed = false;
        int hiddenBy = -1;
        bool isHiddenByDoubtful = false;
    };

    void checkImage(const Surrounding &surrounding, PxFindings *findings) const;
    void checkFrame(const Surrounding &frame, PxFindings *findings) const;
    void checkUse(PxFindings *findings) const;
    QVector<PxSurroundingKey> keys() const;
    QVector<Use> uses(const QVector<PxSurroundingKey> &keys) const;
    void reportUnfit(const Surrounding &surrounding, PxFindings *findings) const;
    void reportHidden(const Surrounding &surrounding, const Surrounding &by,
                      PxFindings *findings) const;

    const PxCheckedProduct &m_product;
    const PxProductPages &m_pages;
    QVector<Surrounding> m_surroundings; // in the order in which the library asks them
};

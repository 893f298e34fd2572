#pragma once

/**
 * What must be equal for two products to be interchangeable, beside orientation, spine and page
 * list. Flags.
 */
enum PxProductComparationCriterion : int {
    PxProductComparationNone = 0,           ///< nothing else
    PxProductComparationBinding = 1,        ///< the binding
    PxProductComparationPaperType = 2,      ///< the paper
    PxProductComparationSpaceMagnitude = 4, ///< the size class
    PxProductComparationPageIncrement = 8,  ///< the number of pages by which they grow
    /** What a product has in common with itself in another paper. */
    PxProductComparationAllButPaperType = PxProductComparationBinding |
                                          PxProductComparationSpaceMagnitude |
                                          PxProductComparationPageIncrement,
    /** What a product has in common with itself in another binding. */
    PxProductComparationAllButBinding = PxProductComparationPaperType |
                                        PxProductComparationSpaceMagnitude |
                                        PxProductComparationPageIncrement,
};

/** What one of the two demands. */
inline PxProductComparationCriterion operator|(PxProductComparationCriterion a,
                                               PxProductComparationCriterion b)
{
    return static_cast<PxProductComparationCriterion>(int(a) | int(b));
}

#pragma once

/**
 * What must be equal for two products to be interchangeable, beside orientation, spine and page
 * list. Flags.
 */
enum PxProductComparationCriterion : int {
    PxProductComparationNone = 0,
    PxProductComparationBinding = 1,
    PxProductComparationPaperType = 2,
    PxProductComparationSpaceMagnitude = 4,
    PxProductComparationPageIncrement = 8,
    // What a product has in common with itself in another paper, or with another binding.
    PxProductComparationAllButPaperType = PxProductComparationBinding |
                                          PxProductComparationSpaceMagnitude |
                                          PxProductComparationPageIncrement,
    PxProductComparationAllButBinding = PxProductComparationPaperType |
                                        PxProductComparationSpaceMagnitude |
                                        PxProductComparationPageIncrement,
};

inline PxProductComparationCriterion operator|(PxProductComparationCriterion a,
                                               PxProductComparationCriterion b)
{
    return static_cast<PxProductComparationCriterion>(int(a) | int(b));
}

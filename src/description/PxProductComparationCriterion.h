#pragma once

/** What makes two products interchangeable, beside orientation, spine and page list. Flags. */
enum PxProductComparationCriterion : int {
    PxProductComparationNone = 0,
    PxProductComparationBinding = 1,
    PxProductComparationPaperType = 2,
    PxProductComparationSpaceMagnitude = 4,
    PxProductComparationPageIncrement = 8,
    // What the same product in another paper, or with another binding, has in common with it.
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

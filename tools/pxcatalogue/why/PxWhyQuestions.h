#pragma once

#include "why/PxWhyQuestion.h"

#include <PxProductProperties.h>

class PxWhyProduct;

/** The questions that can be asked about a product. The library answers each of them. */
namespace PxWhyQuestions {

PxWhyQuestion offered(const PxWhyProduct &product);
PxWhyQuestion pageCount(const PxWhyProduct &product, int count);
/** Whether it may be designed in this theme now, which is the one that it is shown in. */
PxWhyQuestion theme(const PxWhyProduct &product, const PxTheme &theme);
/** Whether this account may order it now, designed in the theme. */
PxWhyQuestion keyAccount(const PxWhyProduct &product, const PxTheme &theme, int number);
PxWhyQuestion compatible(const PxWhyProduct &product, const PxWhyProduct &other,
                         PxProductComparationCriterion criterion);
/** Whether there is such a page, and what it gets. Pages are counted from 0. */
PxWhyQuestion page(const PxWhyProduct &product, int number);

} // namespace PxWhyQuestions

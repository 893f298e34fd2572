#pragma once

/** The code of a product type. An open enumeration: the codes come from the catalogue. */
enum PxProductTypeEnum : int {
    PxProductTypeUnknown = 0, ///< no product type
};

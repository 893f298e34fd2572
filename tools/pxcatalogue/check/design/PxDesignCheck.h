#pragma once

#include "check/source/PxCheckedProduct.h"
#include "check/words/PxKnownNames.h"

#include <QSet>

/**
 * Checks what a product is designed with: default templates, variants, categories of backgrounds,
 * material.
 */
class PxDesignCheck
{
public:
    /** The ids of all themes; empty when they are not known. */
    explicit PxDesignCheck(const PxKnownNames &themeIds) : m_themeIds(themeIds) {}

    void checkProduct(const PxCheckedProduct &product, PxFindings *findings);
    /** A file of the user-defaults directory, when the products have been checked. */
    void checkUserDefaults(const PxCheckedFile &file, PxFindings *findings);

private:
    PxKnownNames m_themeIds;
    QSet<QString> m_productNames; // of the products checked so far
};

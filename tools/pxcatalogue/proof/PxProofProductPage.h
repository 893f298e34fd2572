#pragma once

#include <QByteArray>

struct PxProofCatalogue;
struct PxProofProduct;

/** The page of a product. */
class PxProofProductPage
{
public:
    static QByteArray page(const PxProofCatalogue &catalogue, const PxProofProduct &product);
};

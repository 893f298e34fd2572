#pragma once

#include <QByteArray>

struct PxProofCatalogue;

/** The first page: tables of the products, of the earlier ones and of the themes. */
class PxProofIndex
{
public:
    static QByteArray page(const PxProofCatalogue &catalogue);
};

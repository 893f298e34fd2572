#pragma once

#include <QByteArray>

class PxProofFolder;
struct PxProofCatalogue;

/** The first page: tables of the products, of the earlier ones and of the themes. */
class PxProofIndex
{
public:
    /** The products and themes have been written to the folder. */
    static QByteArray page(const PxProofCatalogue &catalogue, const PxProofFolder &folder);
};

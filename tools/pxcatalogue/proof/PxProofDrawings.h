#pragma once

#include <QByteArray>

class PxHtml;
struct PxProofProduct;

/** The drawings of a product. */
class PxProofDrawings
{
public:
    /**
     * With the smallest, the usual and the largest page count, in the page. Layers and page counts
     * can be switched by the script; without it all is seen.
     */
    static void addTo(PxHtml *html, const PxProofProduct &product);
    /** Its first sheet, without letters, as a file for the table of products; empty for none. */
    static QByteArray small(const PxProofProduct &product);
};

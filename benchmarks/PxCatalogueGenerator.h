#pragma once

#include <QDir>
#include <QXmlStreamWriter>

#include <random>

/**
 * Writes catalogues of any size that resemble real ones, always the same for the same size.
 *
 * Product files have 2 to 8 KB; a third are books with 20 to 60 page counts, a third have comments,
 * a few are in ISO-8859-1.
 */
class PxCatalogueGenerator
{
public:
    /** Answers whether all could be written; what is in the directory is overwritten. */
    bool generate(const QDir &directory, int productCount, int themeCount);

private:
    void writeProductTypes(QXmlStreamWriter &xml, int productCount);
    void writeProduct(QXmlStreamWriter &xml, int number);
    void writeAttributes(QXmlStreamWriter &xml, int number);
    void writeSpines(QXmlStreamWriter &xml);
    void writeSurroundings(QXmlStreamWriter &xml, bool isBook);
    void writeDefaults(QXmlStreamWriter &xml, bool isBook);
    void writeRedirects(QXmlStreamWriter &xml);
    void writeBarcodes(QXmlStreamWriter &xml);
    void writeVariants(QXmlStreamWriter &xml);
    void writeExtraPages(QXmlStreamWriter &xml);
    void writeTheme(QXmlStreamWriter &xml, int number, int productCount);
    /** From the smallest to the largest, both included. */
    int random(int smallest, int largest);

    std::mt19937 m_random; // whose numbers the standard fixes
};

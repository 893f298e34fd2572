#pragma once

#include <QDir>
#include <QXmlStreamWriter>

#include <random>

/**
 * Writes catalogues of any size that resemble real ones. The same size always gives the same
 * catalogue.
 *
 * Product files have 2 to 8 KB. A third of them are books with 20 to 60 page counts, a third have
 * comments, and a few are in ISO-8859-1.
 */
class PxCatalogueGenerator
{
public:
    /**
     * Writes a catalogue over the contents of the directory. Returns whether all files could be
     * written.
     */
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
    /** A random number from the smallest to the largest, including both. */
    int random(int smallest, int largest);

    std::mt19937 m_random; // gives the same numbers everywhere
};

#pragma once

#include <QDir>
#include <QXmlStreamWriter>

#include <random>

/** How large a catalogue is, and what its files hold. */
struct PxCatalogueShape
{
    int products = 1000;
    int themes = 100;
    int themesPerFile = 100;
    int moreSpines = 0;    ///< of each book
    int moreTemplates = 0; ///< of each product
    int moreTypes = 0;     ///< rows of producttypes.xml without a product
    int userDefaults = 0;  ///< files

    /** One that has more of everything, and a file for each theme. */
    static PxCatalogueShape rich() { return {1000, 100, 1, 10, 4, 500, 20}; }
};

/**
 * Writes catalogues of any size that resemble real ones. The same shape always gives the same
 * catalogue.
 *
 * Product files have 2 to 8 KB, if their shape asks for no more. A third of them are books with 20
 * to 60 page counts, a third have comments, and a few are in ISO-8859-1.
 */
class PxCatalogueGenerator
{
public:
    explicit PxCatalogueGenerator(const PxCatalogueShape &shape) : m_shape(shape) {}

    /**
     * Writes a catalogue over the contents of the directory. Returns whether all files could be
     * written.
     */
    bool generate(const QDir &directory);

private:
    void writeProductTypes(QXmlStreamWriter &xml);
    void writeProduct(QXmlStreamWriter &xml, int number);
    void writeAttributes(QXmlStreamWriter &xml, int number);
    void writeSpines(QXmlStreamWriter &xml);
    void writeSurroundings(QXmlStreamWriter &xml, bool isBook);
    void writeDefaults(QXmlStreamWriter &xml, bool isBook);
    void writeRedirects(QXmlStreamWriter &xml);
    void writeBarcodes(QXmlStreamWriter &xml);
    void writeVariants(QXmlStreamWriter &xml);
    void writeExtraPages(QXmlStreamWriter &xml);
    void writeUserDefaults(QXmlStreamWriter &xml);
    void writeThemes(QXmlStreamWriter &xml, int first);
    void writeTheme(QXmlStreamWriter &xml, int number);
    /** A random number from the smallest to the largest, including both. */
    int random(int smallest, int largest);

    const PxCatalogueShape m_shape;
    std::mt19937 m_random; // gives the same numbers everywhere
};

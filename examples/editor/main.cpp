// What does an editor put on each page of a photo book of 26 pages for a wedding?
#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    PxProductPropertiesInitializer::setupModule(); // reads the product files

    const int pageCount = 26;
    const PxProductContext book(PxProductType(QStringLiteral("BOOK_A4_PORTRAIT")),
                                QStringLiteral("hochzeit"));
    if (!book.isValid() || !book.theme().isValid())
        qFatal("There is no such product in the catalogue, or no such theme for it.");

    QTextStream out(stdout);
    out.setCodec("UTF-8");
    out << book.shortProductName() << ", " << book.theme().description() << '\n';
    const PxPageTypeList pageTypes = book.pageTypes(pageCount); // including covers and spine
    for (int i = 0; i < pageTypes.size(); ++i) {
        const PxPageContext page(pageTypes[i], book.pageAlignment(i));
        const QSize size = PxProductTypeConfigRegistry::instance()
                               ->sizeSpec(book.productType(), PxPageSizeKey(page, pageCount))
                               .totalSize(); // with bleed, in tenths of a millimetre
        // The user's own templates take precedence over those of the theme.
        const QString layout = book.defaultTemplateForPage(true, page, true);
        const QString background = book.defaultTemplateForPage(false, page, true);
        const PxSurroundingDescription around = book.findSurrounding(PxSurroundingKey(page, i));

        out << i << ": " << pageTypes[i].encodeCSV() << ", " << size.width() / 10.0 << " x "
            << size.height() / 10.0 << " mm, \"" << layout << "\" on \"" << background << '"';
        if (around.isValid())
            out << ", " << around.image();
        out << '\n';
    }
}

// How wide is the spine of a photo book of 26 pages?
#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    PxProductPropertiesInitializer::setupModule(); // reads the product files

    const PxProductType book(QStringLiteral("BOOK_A4_PORTRAIT"));
    const auto *registry = PxProductTypeConfigRegistry::instance();
    if (!registry->exists(book))
        qFatal("There is no such product in the catalogue.");

    const PxPageSizeKey spine(PxPageContext(PxPageTypeSpine, registry->pageAlignment(book, 1)), 26);
    const QSize size = registry->sizeSpec(book, spine).usableSize(); // tenths of a millimetre
    QTextStream(stdout) << "Spine: " << size.width() / 10.0 << " x " << size.height() / 10.0
                        << " mm\n";
}

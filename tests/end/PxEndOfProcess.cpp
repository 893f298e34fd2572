// Asks the library in the destructor of a static object, after main() and, but for "heap", after
// the application object: with "again" for the second time, else for the first. Fails with a line
// for each answer that is wrong.
#include <PxProductProperties.h>
#include <PxXMLLoader.h>

#include <QCoreApplication>
#include <QDate>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

const PxProductType &book()
{
    static const auto &ourBook = *new PxProductType(QStringLiteral("BOOK_A4_PORTRAIT"));
    return ourBook;
}

QString rootOf(const QByteArray &xml)
{
    const QTemporaryDir directory;
    QFile file(directory.filePath("a.xml"));
    if (file.open(QIODevice::WriteOnly))
        file.write(xml);
    file.close();
    QString error;
    const QDomElement root = PxXMLLoader::loadDocumentElement(file.fileName(), &error);
    return root.isNull() ? error : root.attribute("a");
}

QString pageCount()
{
    PxProductPropertiesInitializer::setupModule();
    return QString::number(PxProductContext(book()).minPages());
}

// clang-format off
const struct { const char *name; QString (*ask)(); const char *answer; } questions[] = {
    {"plain file", [] { return rootOf("<e a='1'/>"); }, "1"},
    {"file for the full parser", [] { return rootOf("<!DOCTYPE e><e a='1'/>"); }, "1"},
    {"file in another encoding", [] { return rootOf("<?xml version='1.0' encoding='ISO-8859-1'?><e a='\xe4'/>"); }, "ä"},
    {"frame model", [] { return PxHumanReadable::instance()->frameName("Leinwand Ohne Rahmen"); }, "Leinwand Ohne Rahmen"},
    {"description", [] { return QString::number(PxProductTypeConfigRegistry::instance()->description(book())->spineWidth(26)); }, "94"},
    {"legacy description", [] { return PxProductTypeConfigRegistry::legacyInstance()->binding(PxProductType("CUP1")).encodeCSV(); }, "GIFT"},
    {"class of a product", [] { return QString::number(book().productClass()); }, "1"},
    {"display name", [] { return PxBinding("LEATHER").humanReadableName(); }, "Leder"},
    {"recycle bin", [] { return PxThematicCategory::recycleBin().name(); }, "Papierkorb"},
    {"context", [] { return PxProductContext(book(), "hochzeit").theme().description().section(' ', 0, 0); }, "Hochzeit"},
    {"date", [] { return PxThemeFactory::instance()->findTheme("hochzeit").expiryDayToOrderTxt(); }, "2050-12-31"},
    {"date in words", [] { return QString::number(PxProductGroupProperties().fotoIndex().endsWith(' ')); }, "0"},
    {"page count", pageCount, "26"},
    {"theme list", [] { PxThemeList themes("hochzeit,normal"); themes.normalize(); return themes.asCommaSeparatedIDList(); }, "normal,hochzeit"},
    {"variant", [] { return PxProductVariantIdentifiers::instance()->defaultVariant(PxProductType("CUP2")); }, "color:black"},
    {"user defaults", [] { return PxDirectoryConfig::instance()->userDefaultsPath().section('/', -2); }, "PxEndOfProcess/defaults"},
};
// clang-format on

int askAll()
{
    int wrong = 0;
    for (const auto &question : questions) {
        const QString answer = question.ask();
        if (answer == QString::fromUtf8(question.answer))
            continue;
        std::fprintf(stderr, "%s: \"%s\"\n", question.name, qPrintable(answer));
        ++wrong;
    }
    return wrong;
}

/** Created before main(), so destroyed after all that the library makes on first use. */
const struct LastWords
{
    ~LastWords()
    {
        if (askAll() > 0)
            std::_Exit(EXIT_FAILURE);
    }
} lastWords;

} // namespace

int main(int argc, char *argv[])
{
    const auto *application = new QCoreApplication(argc, argv);
    QCoreApplication::setApplicationName("PxEndOfProcess");
    PxDirectoryConfig::instance()->setResourceDirectories({PX_SAMPLE_DIRECTORY});
    PxDirectoryConfig::instance()->setThemesDirectory(PX_SAMPLE_DIRECTORY "/themes");
    const QStringList arguments = QCoreApplication::arguments();
    QImage(PX_SAMPLE_DIRECTORY "/images/barcode.png"); // as the application itself may do
    QDate::currentDate().toString("yyyy");
    const int wrong = arguments.contains("again") ? askAll() : 0;
    if (!arguments.contains("heap"))
        delete application;
    return wrong > 0 ? EXIT_FAILURE : EXIT_SUCCESS;
}

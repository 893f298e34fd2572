// Shows what the product files of a catalogue say, as the library understands them.
#include "app/PxCatalogueLog.h"
#include "commands/PxCommand.h"
#include "commands/PxCommandLine.h"
#include "shell/PxCompletion.h"
#include "shell/PxManual.h"
#include "writing/PxOutputText.h"
#include "writing/PxTerminal.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QLocale>
#include <QString>
#include <QTranslator>

#include <optional>

/** The texts of a static library. The macro must not stand in a namespace. */
static void loadTexts()
{
    Q_INIT_RESOURCE(pxtools);
}

namespace {

/** Must be called before the library is used, which translates its tables when it builds them. */
void installTranslation(const QString &language)
{
    const QLocale locale = language.isEmpty() ? QLocale() : QLocale(language);
    // There is no translation into German, the language of the source texts: a user who prefers
    // German would get the translation into the second choice.
    if (locale.uiLanguages().value(0).startsWith("de"))
        return;
    for (const QString name : {"pxproductproperties", "pxtools"}) {
        auto *translator = new QTranslator(QCoreApplication::instance());
        if (translator->load(locale, name, "_", ":/" + name))
            QCoreApplication::installTranslator(translator);
    }
}

PxExitStatus run(const PxCommandLine &line)
{
    if (line.problem())
        return PxCommand::fail(*line.problem());
    if (line.information())
        return PxCommand::printed(PxOutputText(*line.information()));
    using Shown = PxCatalogueLog::Shown;
    PxCatalogueLog::install(line.isSet("verbose")            ? Shown::Everything
                            : line.command().showsWarnings() ? Shown::Warnings
                                                             : Shown::Nothing);
    loadTexts();
    installTranslation(line.isSet("lang") || line.command().dependsOnLocale()
                           ? line.keywords("lang").value(0)
                           : "de");
    return line.command().run(line);
}

/** What is no command line of a user: nobody types this, so it is not in --help. */
std::optional<PxOutputText> answerToShell(const QStringList &words)
{
    if (words.value(1) == "--manual" && words.size() == 2)
        return PxManual::text();
    if (words.value(1) != "--complete")
        return std::nullopt;
    PxCatalogueLog::install(PxCatalogueLog::Shown::Nothing);
    return PxCompletion::of(words.mid(2));
}

/** A QGuiApplication takes fonts and a display, which a machine that prints tables may not have. */
template <typename APPLICATION>
std::optional<int> runIn(int argc, char *argv[])
{
    const APPLICATION application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (const auto text = answerToShell(words))
        return int(PxCommand::printed(*text));
    const PxCommandLine line(words);
    const bool isPainted =
        !line.problem() && !line.information() && line.command().needsFonts(line);
    if (isPainted && !qobject_cast<const QGuiApplication *>(&application))
        return std::nullopt;
    return int(run(line));
}

} // namespace

int main(int argc, char *argv[])
{
    PxTerminal::prepare();
    QCoreApplication::setApplicationName("pxcatalogue");
    QCoreApplication::setApplicationVersion(PX_CATALOGUE_VERSION);
    if (const auto status = runIn<QCoreApplication>(argc, argv))
        return *status;
    // Qt would abort without a display, or if the user's platform were not there. No other is
    // needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // What Qt says of the user's session does not matter to files.
    PxCatalogueLog::install(PxCatalogueLog::Shown::Nothing);
    return *runIn<QGuiApplication>(argc, argv);
}

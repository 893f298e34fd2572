// Starts once, as an application does, and prints what that cost: start WHAT CATALOGUE.
//
// WHAT is "registry", "themes" or "both" for the library, "qt-registry", "qt-themes" or "qt-both"
// for reading and parsing the same files with Qt alone. Printed are the nanoseconds by the clock,
// those of all threads together, and the kilobytes that the process had at its largest.
#include <PxProductProperties.h>

#include <QCoreApplication>
#include <QDir>
#include <QDomDocument>
#include <QElapsedTimer>
#include <QFile>

#include <cstdio>
#include <cstdlib>

#include <sys/resource.h>

namespace {

void ignoreLog(QtMsgType, const QMessageLogContext &, const QString &) {}

void require(bool isRight, const char *what)
{
    if (isRight)
        return;
    fprintf(stderr, "start: wrong answer: %s\n", what);
    exit(1);
}

QFileInfoList xmlFiles(const QString &directory)
{
    return QDir(directory).entryInfoList({QStringLiteral("*.xml")}, QDir::Files, QDir::Unsorted);
}

void readWithQt(const QString &directory)
{
    for (const QFileInfo &info : xmlFiles(directory)) {
        QFile file(info.filePath());
        QDomDocument document;
        require(file.open(QIODevice::ReadOnly) && document.setContent(file.readAll()),
                "setContent");
    }
}

rusage usage()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return usage;
}

qint64 processorNanoseconds(const rusage &usage)
{
    const auto nanoseconds = [](const timeval &time) {
        return (time.tv_sec * 1000000LL + time.tv_usec) * 1000;
    };
    return nanoseconds(usage.ru_utime) + nanoseconds(usage.ru_stime);
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler(ignoreLog);
    const QString what = QCoreApplication::arguments().value(1);
    const QString catalogue = QCoreApplication::arguments().value(2);
    const bool isQt = what.startsWith(QLatin1String("qt-"));
    const bool hasRegistry = !what.endsWith(QLatin1String("themes"));
    const bool hasThemes = !what.endsWith(QLatin1String("registry"));
    PxDirectoryConfig::instance()->setResourceDirectories({catalogue});
    PxDirectoryConfig::instance()->setUserDefaultsPath(catalogue + QLatin1String("/defaults"));
    PxDirectoryConfig::instance()->setThemesDirectory(catalogue + QLatin1String("/themes"));

    const qint64 before = processorNanoseconds(usage());
    QElapsedTimer clock;
    clock.start();
    if (hasRegistry && isQt)
        readWithQt(catalogue + QLatin1String("/products"));
    if (hasRegistry && !isQt)
        PxProductPropertiesInitializer::setupModule();
    if (hasThemes && isQt)
        readWithQt(catalogue + QLatin1String("/themes"));
    if (hasThemes && !isQt)
        PxThemeFactory::instance();
    const qint64 nanoseconds = clock.nsecsElapsed();
    const rusage after = usage();

    // Only right answers are measured.
    if (hasRegistry && !isQt)
        require(PxProductTypeConfigRegistry::instance()->products().size() ==
                    xmlFiles(catalogue + QLatin1String("/products")).size(),
                "the products");
    if (hasThemes && !isQt)
        require(PxThemeFactory::instance()->contains(QStringLiteral("theme-99")), "the themes");
    printf("%lld %lld %ld\n", nanoseconds, processorNanoseconds(after) - before, after.ru_maxrss);
    return 0;
}

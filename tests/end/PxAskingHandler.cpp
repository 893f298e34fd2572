// A message handler that asks the registry while the registry loads: a debug build says so and
// ends.
#include <description/PxProductTypeConfigRegistry.h>

#include <PxDirectoryConfig.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <unistd.h>

static void ask(QtMsgType, const QMessageLogContext &, const QString &)
{
    PxProductTypeConfigRegistry::instance();
}

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QTemporaryDir directory;
    QDir(directory.path()).mkdir("products");
    QFile file(directory.filePath("products/a.xml"));
    if (!file.open(QIODevice::WriteOnly) || file.write("no XML") < 0)
        return 1;
    file.close();
    PxDirectoryConfig::instance()->setResourceDirectories({directory.path()});
    std::signal(SIGABRT, [](int) { _exit(1); }); // CTest would not look at the message
    qInstallMessageHandler(ask);
    return PxProductTypeConfigRegistry::instance() ? 0 : 1;
}

// An application as strict as any: see the flags in CMakeLists.txt. HEADERS are all installed ones.
#include HEADERS

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    PxProductPropertiesInitializer::setupModule();
    const auto *registry = PxProductTypeConfigRegistry::instance();
    QTextStream(stdout) << registry->products().size() << " products\n";
    return registry->products().isEmpty() ? 1 : 0;
}

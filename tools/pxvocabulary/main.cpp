// Writes the schemas and the tables of the documentation from the rows of tools/format.
#include "PxFormatTables.h"
#include "PxSchemaWriter.h"

#include "writing/PxOutputText.h"
#include "writing/PxTerminal.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>

namespace {

constexpr int done = 0;
constexpr int cannotRun = 2;

constexpr char usage[] =
    "use \"xsd product\" or \"xsd theme\" to print the XML schema of these files, or "
    "\"tables FILE\" to print FILE with its tables regenerated";

int fail(const QString &message)
{
    PxTerminal::printError(message);
    return cannotRun;
}

int print(const QByteArray &text)
{
    return PxTerminal::write(PxOutputText(QString::fromUtf8(text))) ? done : cannotRun;
}

int printSchema(PxFileKind kind)
{
    QBuffer schema;
    schema.open(QIODevice::WriteOnly);
    PxSchemaWriter(&schema).write(kind);
    return print(schema.data());
}

int printTables(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(path + QStringLiteral(": ") + file.errorString());
    const PxFormatTables tables(QString::fromUtf8(file.readAll()));
    if (!tables.problems().isEmpty())
        return fail(path + QStringLiteral(": ") + tables.problems().join(QStringLiteral(", ")));
    return print(tables.document().toUtf8());
}

} // namespace

int main(int argc, char *argv[])
{
    PxTerminal::prepare();
    QCoreApplication::setApplicationName(QStringLiteral("pxvocabulary"));
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    if (arguments == QStringList{QStringLiteral("xsd"), QStringLiteral("product")})
        return printSchema(PxFileKind::Product);
    if (arguments == QStringList{QStringLiteral("xsd"), QStringLiteral("theme")})
        return printSchema(PxFileKind::Theme);
    if (arguments.size() == 2 && arguments.first() == QLatin1String("tables"))
        return printTables(arguments.last());
    return fail(QString::fromUtf8(usage));
}

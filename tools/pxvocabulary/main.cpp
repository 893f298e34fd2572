// Writes the schemas and the tables of the documentation from the vocabulary.
#include "PxFormatTables.h"
#include "PxSchemaWriter.h"

#include <QFile>
#include <QTextStream>

namespace {

constexpr int exitWrongInput = 2;

constexpr char usage[] =
    "pxvocabulary xsd product|theme   prints the XML schema of product or theme files\n"
    "pxvocabulary tables FILE         prints FILE with its tables as the vocabulary has them\n";

int fail(const QString &message)
{
    QTextStream(stderr) << message << '\n';
    return exitWrongInput;
}

int printTables(const QString &path, QFile *output)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return fail(path + QStringLiteral(": ") + file.errorString());
    const PxFormatTables tables(QString::fromUtf8(file.readAll()));
    if (!tables.problems().isEmpty())
        return fail(path + QStringLiteral(": ") + tables.problems().join(QStringLiteral(", ")));
    output->write(tables.document().toUtf8());
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    QFile output;
    if (!output.open(stdout, QIODevice::WriteOnly))
        return fail(output.errorString());
    if (arguments == QStringList{QStringLiteral("xsd"), QStringLiteral("product")})
        PxSchemaWriter(&output).write(PxFileKind::Product);
    else if (arguments == QStringList{QStringLiteral("xsd"), QStringLiteral("theme")})
        PxSchemaWriter(&output).write(PxFileKind::Theme);
    else if (arguments.size() == 2 && arguments.first() == QLatin1String("tables"))
        return printTables(arguments.last(), &output);
    else
        return fail(QString::fromUtf8(usage));
    return 0;
}

#include "commands/PxExportCommand.h"

#include "commands/PxCatalogueDirectories.h"
#include "commands/PxCommandLine.h"
#include "export/PxCatalogueExport.h"
#include "writing/PxOutputFile.h"
#include "writing/PxTerminal.h"

#include <PxProductProperties.h>

PxCommandUsage PxExportCommand::usage() const
{
    // clang-format off
    return {"export",
        "The whole catalogue as JSON Lines, to compare and to process.\n"
        "One object a line: the catalogue, its product types, products, products of earlier "
        "catalogues and themes, each by name. The same files give the same bytes everywhere and "
        "every day. Display names are German unless --lang is given.", {
        {"output", "FILE", "Write to this file instead of stdout. It is replaced when all is written.", 0, 0, {}, PxOption::Form::File},
    }};
    // clang-format on
}

PxExitStatus PxExportCommand::run(const PxCommandLine &line) const
{
    if (const auto problem = PxCatalogueDirectories::apply(line))
        return fail(*problem);
    PxCatalogueExport::becomeIndependentOfUser(line.isSet("user-defaults"));
    PxProductPropertiesInitializer::setupModule();
    PxCatalogueExport catalogue;
    const PxJsonLines lines = [&catalogue] { return catalogue.next(); };
    if (!line.isSet("output"))
        return printed(lines);
    const QString path = line.value("output");
    const auto problem = PxOutputFile::write(path, lines);
    return problem
               ? fail({QString("the file \"%1\" cannot be written: ").arg(path) + problem->text})
               : PxExitStatus::Done;
}

#include "proof/PxProofWords.h"

QString PxProofWords::language()
{
    return QCoreApplication::translate("PxDrawing", "de", "code of the language");
}

QString PxProofWords::of(const QString &label)
{
    return label;
}

QString PxProofWords::yesOrNo(bool is)
{
    return is ? tr("ja") : tr("nein");
}

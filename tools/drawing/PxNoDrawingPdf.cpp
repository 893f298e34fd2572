#include "drawing/PxDrawingPdf.h"

bool PxDrawingPdf::isAvailable()
{
    return false;
}

std::optional<PxProblem> PxDrawingPdf::write(const PxDrawing & /*drawing*/, QByteArray * /*pdf*/)
{
    return PxProblem{"PDF cannot be written: the program was built without libqpdf (PX_DRAW_PDF)"};
}

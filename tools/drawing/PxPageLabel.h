#pragma once

#include "drawing/PxSheetRoom.h"

/** What is written in the middle of a page: what it is, its numbers, its size. */
namespace PxPageLabel {

/** Pages that are too small get none: they are told in the title block only. */
void addTo(PxSheetRoom &room, int page);

} // namespace PxPageLabel

#pragma once

#include <themes/PxTheme.h>

#include <QByteArray>

struct PxProofCatalogue;

/** The page of a theme. */
class PxProofThemePage
{
public:
    static QByteArray page(const PxProofCatalogue &catalogue, const PxTheme &theme);
};

#pragma once

class PxProductTypeDescription;
class PxTheme;

/**
 * Asks a record everything it can answer, with arguments an application should not, but may pass:
 * for tests that only want to see it survive. Page counts stay below what takes long.
 */
void pxAskEverything(const PxProductTypeDescription &description);
void pxAskEverything(const PxTheme &theme);

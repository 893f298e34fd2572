#pragma once

#include <QtGlobal>

/**
 * How much work and memory one run of the checks may take. Files that people write stay far below
 * each limit; the limits stop files that are made to keep the program busy.
 */
namespace PxCheckLimits {

// Reports. The first findings of a tag in a file are listed, the others only counted.
constexpr int findingsOfTag = 100;
constexpr int messageLength = 1000; // characters
constexpr int quotedLength = 60;    // characters of a value in a message

// Guesses at what the author meant. More mistakes than this are not typing errors.
constexpr int comparedLength = 64;            // characters; no name of the format is longer
constexpr qint64 comparedLetters = 100000000; // pairs of characters, for one set of names
constexpr int listedWords = 20;               // of a table, where none is near
constexpr int wordListLength = 1000;          // characters of a list with a wrong separator
constexpr int guessedImages = 500;            // for products, and as many for themes
constexpr int imagesOfDirectory = 2000;       // some file systems list names endlessly
constexpr int foldersOfDirectory = 100;       // in which an image may lie instead

// Files in directories that the library does not read.
constexpr int filesBelow = 10000;
constexpr int heads = 1000;       // of these files are looked into, to see what they are
constexpr int headLength = 65536; // bytes

// Of long lists, only the first entries are checked.
constexpr int listParts = 100000;
constexpr int searchedElements = 10000; // when looking for a misspelt name of a missing element
constexpr int answeredLength = 1000;    // characters of an attribute that an answer depends on
constexpr int barcodes = 100;           // each is compared with all before it
constexpr int redirects = 1000;         // each is compared with all before it
constexpr int surroundings = 1000;      // each is tried for every page
constexpr qint64 surroundingQueries = 1000000;

// A page with a longer side is not compared with what lies on it.
constexpr int comparedSide = 100000000;

// Pages of a product, added up over all its page counts. With more, its pages count as unknown.
constexpr qint64 pages = 200000;
constexpr int pageCount = 10000;
// Pages of all default templates of a file, added up.
constexpr int pagesOfDefaults = 100000;

} // namespace PxCheckLimits

#pragma once

/**
 * What no honest file comes near; larger ones would cost more time, memory or stack than we are
 * ready to give an unknown file.
 */
namespace PxXMLLimits {

/** Bytes of a file. */
constexpr int fileSize = 8 * 1024 * 1024;
/** Elements inside each other, the document element included. */
constexpr int depth = 256;
/** Attributes of one tag. */
constexpr int attributes = 256;
/** Elements, attributes, texts, CDATA sections, comments, processing instructions of a file. */
constexpr int nodes = 200000;

} // namespace PxXMLLimits

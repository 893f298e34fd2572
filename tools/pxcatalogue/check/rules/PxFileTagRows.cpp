#include "check/findings/PxCheckTagRows.h"

// clang-format off
static constexpr PxCheckTag rows[] = {
    {PxTag::AllowanceUnused, "allowance-unused", PxSeverity::Warning, "a comment allows what does not occur",
     "A comment \"check: allow TAG\" silences a tag for the element behind it. Here there is nothing to silence, because the fault was repaired, the tag is misspelt, or the comment stands before the wrong element. Take the comment out, so that it does not hide the next fault.",
     "products/cup2.xml",
     "»<!-- check: allow spine-pages-twice for old orders -->\n    <pages>normalpage</pages>",
     "<pages>normalpage</pages>"},
    {PxTag::FileNameUndecodable, "file-name-undecodable", PxSeverity::Warning, "file names that cannot be decoded in this locale",
     "Old archives contain file names in the encoding of the machine that packed them. On a machine with another encoding no program can open these files by name, and the products or themes in them are missing. The finding is reported for the directory. Rename the files, preferably in ASCII.",
     "", "", ""},
    {PxTag::FileNotRead, "file-not-read", PxSeverity::Info, "a file that the library ignores",
     "Files of products, themes and user defaults end in \".xml\"; the library ignores other files, hidden ones, pipes and directories with all that is in them, and a second directory of products. Files in the resource directory itself, and in a directory there whose name is nearly that of one that is read, are reported if their document element is that of a catalogue. A product file that was renamed to keep a copy is harmless; the product in one that got such a name by mistake is missing.",
     "products/cup2.xml.bak",
     "»<productdescription/>\n",
     "", true},
    {PxTag::FileUnreadable, "file-unreadable", PxSeverity::Error, "a file that cannot be opened, or a link to no file",
     "The library skips it with a line in its log, and the products or themes in it are missing. Check the kind and the permissions of the file, and where the link leads.",
     "", "", ""},
    {PxTag::TextDecodedTwice, "text-decoded-twice", PxSeverity::Warning, "letters that were decoded twice",
     "The file was read in another encoding than its own, and saved again: each letter with a dot or an accent has become two. Customers see them, and names of templates and categories no longer match. Read the file as UTF-8, or declare the encoding that it has, and write the texts again.",
     "products/cup2.xml",
     "templates=\"»KÃ¼ste,3 Bilder in Reihe\"",
     "templates=\"Küste,3 Bilder in Reihe\""},
    {PxTag::XmlAttributeTwice, "xml-attribute-twice", PxSeverity::Error, "an attribute is given twice in one tag",
     "That is no well-formed XML, so the whole file is refused; other parsers take the first or the last value, which is worse. Keep the one that is meant.",
     "products/cup2.xml",
     "<usablesize width=\"2000\" »width=\"2500\" height=\"950\"/>",
     "<usablesize width=\"2000\" height=\"950\"/>"},
    {PxTag::XmlEncodingDamaged, "xml-encoding-damaged", PxSeverity::Error, "bytes that are no text in the declared encoding",
     "Without a declaration files are UTF-8. A file that an editor saved in another encoding is refused, or shows wrong characters. Save it as UTF-8, or declare its encoding in the first line.",
     "products/cup2.xml",
     "<?xml version=\"1.0\" encoding=\"»UTF-7b\"?>",
     "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"},
    {PxTag::XmlEntityUndeclared, "xml-entity-undeclared", PxSeverity::Error, "an entity that XML does not know",
     "XML knows only &amp; &lt; &gt; &quot; and &apos;, and those of HTML are not among them. The whole file is refused. Write the character itself.",
     "products/cup2.xml",
     "<variants type=\"Innenfarbe»&uuml;\">",
     "<variants type=\"Innenfarbe\">"},
    {PxTag::XmlLimitExceeded, "xml-limit-exceeded", PxSeverity::Error, "a file that is over a limit of the library",
     "The library reads files of unknown origin, so it limits their size, their depth and the number of their nodes and attributes, and refuses any that define a document type of their own. No honest file comes near these limits.",
     "products/cup2.xml",
     "<!DOCTYPE p »[<!ENTITY a \"b\">]>\n<productdescription>",
     "<productdescription>"},
    {PxTag::XmlNotWellFormed, "xml-not-well-formed", PxSeverity::Error, "the file is no well-formed XML",
     "A tag that is not closed, a missing quote or a stray character: the file cannot be understood beyond that place, and nothing of it is read.",
     "products/cup2.xml",
     "<pages>normalpage»</page>",
     "<pages>normalpage</pages>"},
};
// clang-format on

PxRows<PxCheckTag> fileTagRows()
{
    return rows;
}

// Electronic books are archives of a few pages.
#include <initializer_list>

#include "demo_phone/bytes.h"
#include "demo_phone/demo_checksums.h"
#include "demo_phone/demo_files.h"

namespace velk {

namespace {

struct Archive_Entry {
    std::string_view name;
    std::string_view data;
};

/// What an archive says about an entry, beside it and once more in its directory.
std::string entry_facts(const Archive_Entry& entry) {
    constexpr std::uint32_t first_day_of_2020 = 0x5021;
    std::string out;
    append_little(out, 10, 2);     // the version that can read it
    append_little(out, 0x800, 2);  // names are UTF-8
    append_little(out, 0, 2);      // stored as it is
    append_little(out, 0, 2);
    append_little(out, first_day_of_2020, 2);
    append_little(out, crc32_of(entry.data));
    append_little(out, entry.data.size());
    append_little(out, entry.data.size());
    append_little(out, entry.name.size(), 2);
    append_little(out, 0, 2);
    return out;
}

std::string stored_zip(std::initializer_list<Archive_Entry> entries) {
    std::string out;
    std::string directory;
    for (const Archive_Entry& entry : entries) {
        directory += "PK\x01\x02";
        append_little(directory, 10, 2);
        directory += entry_facts(entry);
        directory.append(10, '\0');
        append_little(directory, out.size());
        directory += entry.name;
        out.append("PK\x03\x04").append(entry_facts(entry)).append(entry.name).append(entry.data);
    }
    const std::size_t start = out.size();
    out += directory;
    out.append("PK\x05\x06").append(4, '\0');
    append_little(out, entries.size(), 2);
    append_little(out, entries.size(), 2);
    append_little(out, directory.size());
    append_little(out, start);
    append_little(out, 0, 2);
    return out;
}

}  // namespace

std::string demo_epub(std::string_view title, std::string_view text) {
    const std::string name(title);
    const std::string page =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<html xmlns=\"http://www.w3.org/1999/xhtml\">"
        "<head><title>" +
        name + "</title></head><body><h1>" + name + "</h1><p>" + std::string(text) +
        "</p></body></html>\n";
    const std::string package =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<package "
        "xmlns=\"http://www.idpf.org/2007/opf\" "
        "version=\"2.0\" unique-identifier=\"id\"><metadata "
        "xmlns:dc=\"http://purl.org/dc/elements/1.1/\"><dc:title>" +
        name + "</dc:title><dc:language>en</dc:language><dc:identifier id=\"id\">demo-" +
        std::to_string(crc32_of(name)) +
        "</dc:identifier></metadata><manifest><item id=\"page\" href=\"page.xhtml\" "
        "media-type=\"application/xhtml+xml\"/></manifest><spine><itemref "
        "idref=\"page\"/></spine></package>\n";
    return stored_zip(
        {{"mimetype", "application/epub+zip"},
         {"META-INF/container.xml",
          "<?xml version=\"1.0\"?>\n<container version=\"1.0\" "
          "xmlns=\"urn:oasis:names:tc:opendocument:xmlns:container\"><rootfiles><rootfile "
          "full-path=\"book.opf\" media-type=\"application/oebps-package+xml\"/></rootfiles>"
          "</container>\n"},
         {"book.opf", package},
         {"page.xhtml", page}});
}

}  // namespace velk

// The one store of settings files (profile files, the registry file, the server file): one
// process-wide cache of parsed documents with one rule for when a file is read again, and edit
// transactions over the locked write path of UpdateFile.
//
// Freshness: a cached document is current while its file's stamp (inode, size, modification
// time) is unchanged and old enough to tell every later change. A file changed within the last
// two seconds may be rewritten within one tick of its clock, same size and with a recycled
// inode, and keep its stamp: its bytes are read again and compared, and parsed again only when
// they differ. A caller that reads several values takes the document once and asks it, so an
// operation sees one version of the file.
//
// Edit(path, change): lock the file, take its content (the cached parse when the bytes are the
// ones cached, else a new one), apply every change, write once and rename once. A document type
// provides `static Document FromBytes(std::string_view)` and `bool ToBytes(std::string& bytes,
// std::string& why) const`, false (with the cause) when it cannot be written back faithfully.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/file/SafeFile.h"
#include "platform/file/StoreFailure.h"

namespace vx::store {

using Parsed = std::shared_ptr<const void>;
using Parser = Parsed (*)(std::string_view bytes);
// Turns the current parse into the bytes to write, and the document they hold.
using Change =
    std::function<EditOutcome(const Parsed& current, std::string& bytes, Parsed& updated)>;

// The current parse of the file; an empty parse for a missing file, null for an unreadable one.
Parsed ReadParsed(const std::string& path, Parser parse);
bool EditParsed(const std::string& path, Parser parse, FileAccess access, const Change& change);

template <class Document>
Parsed ParseAs(std::string_view bytes) {
    return std::make_shared<const Document>(Document::FromBytes(bytes));
}

template <class Document>
std::shared_ptr<const Document> Read(const std::string& path) {
    return std::static_pointer_cast<const Document>(ReadParsed(path, &ParseAs<Document>));
}

// `change` edits the document and returns whether it changed anything. True when the result
// was written or nothing changed; false (with the cause recorded) otherwise.
template <class Document>
bool Edit(const std::string& path, FileAccess access,
          const std::function<bool(Document&)>& change) {
    return EditParsed(path, &ParseAs<Document>, access,
                      [&](const Parsed& current, std::string& bytes, Parsed& updated) {
                          Document document = *static_cast<const Document*>(current.get());
                          if (!change(document)) return EditOutcome::Keep;
                          std::string why;
                          if (!document.ToBytes(bytes, why)) {
                              StoreFailure(path, why);
                              return EditOutcome::Refuse;
                          }
                          updated = std::make_shared<const Document>(std::move(document));
                          return EditOutcome::Write;
                      });
}

}  // namespace vx::store

// Serves the library's dialog texts from its string table: a text whose disambiguation is a
// string number ("3411") is that string in the user's language. Anything else falls through to
// the next translator, or to the English text compiled into the dialog.
#pragma once

#include <QTranslator>

namespace vx {

class StringTableTranslator final : public QTranslator {
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* sourceText,
                      const char* disambiguation = nullptr, int n = -1) const override;
};

}  // namespace vx

#include "CommaLocale.h"

#include <clocale>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#ifndef _WIN32
#include <unistd.h>
#endif

namespace vx::test {
namespace {

const char* const kNames[] = {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "German_Germany"};

bool SetCommaLocale() {
    for (const char* name : kNames) {
        if (std::setlocale(LC_NUMERIC, name) != nullptr &&
            std::strcmp(std::localeconv()->decimal_point, ",") == 0)
            return true;
    }
    return false;
}

#ifndef _WIN32
// The compiled locale's folder, removed when the process ends.
class GeneratedLocales {
public:
    GeneratedLocales() {
        m_folder = std::filesystem::temp_directory_path() /
                   ("vxutil-locales-" + std::to_string(::getpid()));
        std::filesystem::create_directories(m_folder);
        std::string command = "localedef -i de_DE -f UTF-8 '" +
                              (m_folder / "de_DE.UTF-8").string() + "' >/dev/null 2>&1";
        if (std::system(command.c_str()) == 0) ::setenv("LOCPATH", m_folder.c_str(), 1);
    }
    ~GeneratedLocales() {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder, ignored);
    }

private:
    std::filesystem::path m_folder;
};
#endif

}  // namespace

CommaLocale::CommaLocale() {
    if (const char* current = std::setlocale(LC_NUMERIC, nullptr)) m_previous = current;
    m_active = SetCommaLocale();
#ifndef _WIN32
    if (!m_active) {
        static GeneratedLocales generated;
        m_active = SetCommaLocale();
    }
#endif
}

CommaLocale::~CommaLocale() {
    std::setlocale(LC_NUMERIC, m_previous.c_str());
}

}  // namespace vx::test

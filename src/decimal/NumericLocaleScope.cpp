#include "decimal/NumericLocaleScope.h"

#include <clocale>

NumericLocaleScope::NumericLocaleScope() {
    if (const char* current = std::setlocale(LC_NUMERIC, nullptr)) m_strPrevious = current;
    std::setlocale(LC_NUMERIC, "C");
}

NumericLocaleScope::~NumericLocaleScope() {
    if (!m_strPrevious.empty()) std::setlocale(LC_NUMERIC, m_strPrevious.c_str());
}

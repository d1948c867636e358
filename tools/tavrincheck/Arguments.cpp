#include "tools/tavrincheck/Arguments.h"

#include <cmath>

#include "tools/files/Files.h"
#include "tools/tavrincheck/WholeNumber.h"

bool CArguments::Next() {
    if (m_next == m_arguments.size()) {
        return false;
    }
    m_current = m_arguments[m_next++];
    m_value.reset();
    if (!m_onlyNames && m_current == "--") {
        m_onlyNames = true;
        return Next();
    }
    m_isOption = !m_onlyNames && m_current.size() > 1 && m_current.front() == '-';
    const std::size_t equals = m_current.find('=');
    if (m_isOption && equals != std::string::npos) {
        m_value = m_current.substr(equals + 1);
        m_current.resize(equals);
    }
    return true;
}

std::string CArguments::Value(const char* meaning) {
    if (!m_value && m_next < m_arguments.size()) {
        m_value = m_arguments[m_next++];
    }
    if (!m_value || m_value->empty()) {
        throw CToolError(m_current + " lacks its value: give " + meaning + " behind it");
    }
    return *m_value;
}

double CArguments::RealValue(const char* meaning) {
    const std::string value = Value(meaning);
    const std::optional<double> number = WholeNumber<double>(value);
    if (!number || !std::isfinite(*number)) {
        throw CToolError(m_current + " does not take '" + value + "': give " + meaning);
    }
    return *number;
}

int CArguments::IntValue(const char* meaning, int lowest, int highest) {
    const std::string value = Value(meaning);
    const std::optional<int> number = WholeNumber<int>(value);
    if (!number || *number < lowest || *number > highest) {
        throw CToolError(m_current + " does not take '" + value + "': give " + meaning);
    }
    return *number;
}

void CArguments::ExpectNoValue() const {
    if (m_value) {
        throw CToolError(m_current + " takes no value");
    }
}

void CArguments::FailUnknown() const {
    throw CToolError("the option '" + m_current + "' is not known: see --help");
}

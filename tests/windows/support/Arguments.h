// Argument lists as the host hands them to a function of the module.
#pragma once

#include <deque>
#include <string>

#include "sds/sds.h"

class CArguments {
public:
    CArguments& String(const wchar_t* text) {
        m_texts.emplace_back(text);
        Add(RTSTR).string = m_texts.back().data();
        return *this;
    }
    CArguments& Real(double value) {
        Add(RTREAL).real = value;
        return *this;
    }
    CArguments& Short(short value) {
        Add(RTSHORT).integer = value;
        return *this;
    }
    // A value of a type that no function of the module knows.
    CArguments& Other() {
        Add(5016);
        return *this;
    }

    // Null for no arguments.
    sds_resbuf* List() { return m_values.empty() ? nullptr : &m_values.front(); }

private:
    using Value = decltype(sds_resbuf::value);

    Value& Add(short type) {
        m_values.push_back({});
        if (m_values.size() > 1) {
            m_values[m_values.size() - 2].next = &m_values.back();
        }
        m_values.back().type = type;
        return m_values.back().value;
    }

    std::deque<sds_resbuf> m_values;  // stable addresses
    std::deque<std::wstring> m_texts;
};

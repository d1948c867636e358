#include "tests/windows/afx/DialogTemplate.h"

CDialogTemplate::CDialogTemplate(DWORD style, int x, int y, int width, int height) {
    Put32(style);
    Put32(0);
    m_words.push_back(0);
    for (const int number : {x, y, width, height}) {
        m_words.push_back(static_cast<WORD>(number));
    }
    m_words.insert(m_words.end(), {0, 0, 0});  // no menu, the usual class, no caption
}

CDialogTemplate& CDialogTemplate::Add(WORD classAtom, WORD id, const std::wstring& text, DWORD style, int x,
                                      int y, int width, int height) {
    if (m_words.size() % 2 != 0) {
        m_words.push_back(0);
    }
    Put32(style);
    Put32(0);
    for (const int number : {x, y, width, height}) {
        m_words.push_back(static_cast<WORD>(number));
    }
    m_words.insert(m_words.end(), {id, 0xFFFF, classAtom});
    PutText(text);
    m_words.push_back(0);
    ++m_words[4];  // the number of controls
    return *this;
}

void CDialogTemplate::Put32(DWORD value) {
    m_words.push_back(LOWORD(value));
    m_words.push_back(HIWORD(value));
}

void CDialogTemplate::PutText(const std::wstring& text) {
    m_words.insert(m_words.end(), text.begin(), text.end());
    m_words.push_back(0);
}

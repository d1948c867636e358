// An item made up at random, and what the code without windows says that a call makes of its files.
#pragma once

#include <map>
#include <random>
#include <string>
#include <vector>

#include "itemdlg/ParamRecord.h"
#include "itemdlg/TemplateText.h"

using namespace tavrin::itemdlg;

// Chooses among so many; the same seed chooses the same on every system.
class CChoices {
public:
    explicit CChoices(unsigned seed) : m_random(seed) {}
    int Below(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool OneIn(int count) { return Below(count) == 0; }

private:
    std::mt19937 m_random;
};

class CSoakItem {
public:
    // A row of the grid that a person can edit.
    struct Row {
        int row;        // from 0
        int lineIndex;  // of its parameter
        wchar_t type;   // I, D or R
    };

    CSoakItem(CChoices& choices, const TextLookup& texts);

    const std::string& WorkingFile() const { return m_workingFile; }
    const std::string& TemplateFile() const { return m_templateFile; }
    double Scale() const { return m_scale; }
    int Mode() const { return m_mode; }
    const std::vector<Row>& EditableRows() const { return m_editableRows; }

    // The person typed `number` into the row of that line.
    void Type(int lineIndex, double number);

    // Takes the values from a working file that was written, since what became of random input is not known.
    // The first line that cannot hold what was written there, or nothing.
    std::string TakeValuesFrom(const std::string& workingFile);

    // The files as they must be after OK.
    std::string ExpectedWorkingFile() const;
    std::string ExpectedTemplateFile() const;

private:
    std::string RandomFile(CChoices& choices) const;

    TextLookup m_texts;
    double m_scale;
    int m_mode;
    std::string m_workingFile;
    std::string m_templateFile;
    ParamRecordMap m_records;
    std::map<int, std::wstring> m_written;  // value texts taken from a file, by line
    std::vector<Row> m_editableRows;
};

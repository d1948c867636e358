#include "tests/windows/propgrid/RandomGrids.h"

#include <algorithm>
#include <iterator>

namespace tests {
namespace {

const std::wstring kNames[] = {
    L"",
    L"a",
    L"B",
    L"Width",
    L"Height of the upper frame",
    L"&Name && more",
    L"a very long name that certainly does not fit into any column of any of these grids, wherever it ends",
    L"Gr\u00F6\u00DFe \u00C4",
    L"\u0416\u0438\u0437\u043D\u044C",
    L"two\nlines",
    L"tab\tbed",
    L"trailing   ",
    L"zero",
    L"Zero",
    L"10",
    L"9",
};

const std::wstring kTexts[] = {
    L"",
    L"text",
    L"&text && more",
    L"first\r\nsecond\r\n\r\nlast",
    L"only\nline feed\rand return",
    L"\r\n",
    L"a text that is longer than most of the columns are wide, so that it ends in an ellipsis or is cut off",
    L"\u00B6 \u20AC \u4E2D\u6587",
};

const std::wstring kPaths[] = {
    L"",
    L"C:\\",
    L"C:\\short.txt",
    L"C:\\Documents and Settings\\someone\\My Documents\\drawings\\second floor\\windows\\left side.dwg",
    L"\\\\server\\share\\folder\\another folder\\yet another folder\\a file with a long name of its own.png",
    L"afilewithoutafolderbutwithaverylongnamethatfitsintonocolumnwhateveritswidth.txt",
    L"relative\\path\\to\\something\\",
    L"C:/with/slashes/and/more/slashes/and/still/more/slashes/than/before/up/to/the/end.txt",
    L"D:\\" + std::wstring(600, L'x') + L"\\" + std::wstring(600, L'y') + L".txt",
    // Only 1023 characters of a path are shown: here the last name ends in g.
    L"D:\\" + std::wstring(1012, L'x') + L"\\abcdefghijklmnop",
};

const std::wstring kIntegerFormats[] = {L"", L"%d", L"%05d mm", L"0x%X", L"%+d"};
const std::wstring kDoubleFormats[] = {L"", L"%g", L"%.3f", L"%10.2e", L"%g \u00B0"};
const std::wstring kDateFormats[] = {L"", L"", L"%d.%m.%Y", L"%Y-%m-%d %H:%M:%S", L"%A, %B %d", L"%y"};
const int kEditModes[] = {-1, EM_CUSTOM, EM_CUSTOM, EM_INPLACE, EM_DROPDOWN, EM_MODAL, EM_INPLACE_BUTTON, 5};
const wchar_t* const kFaces[] = {L"Tahoma", L"Liberation Sans", L"Liberation Serif", L"Courier New", L""};
const int kNumbers[] = {0, 1, -1, 42, 1000000, INT_MAX, INT_MIN};
const double kReals[] = {0, 1, -0.5, 0.1, 3.14159265358979, 1e7, 1.5e-7, 1e300, 123456.5};

LOGFONTW RandomFont(CRandom& random) {
    LOGFONTW font = {};
    font.lfHeight = random.Chance(80) ? -random.Between(8, 18) : random.Between(8, 22);
    font.lfWeight = random.Chance(20) ? FW_BOLD : FW_NORMAL;
    font.lfItalic = random.Chance(20) ? TRUE : FALSE;
    font.lfUnderline = random.Chance(10) ? TRUE : FALSE;
    const BYTE qualities[] = {DEFAULT_QUALITY, NONANTIALIASED_QUALITY, ANTIALIASED_QUALITY,
                              CLEARTYPE_QUALITY};
    font.lfQuality = random.Pick(qualities);
    wcscpy(font.lfFaceName, random.Pick(kFaces));
    return font;
}

COleDateTime RandomDate(CRandom& random) {
    COleDateTime date(random.Between(100, 9999), random.Between(1, 12), random.Between(1, 28),
                      random.Between(0, 23), random.Between(0, 59), random.Between(0, 59));
    if (random.Chance(40)) {
        date = COleDateTime(random.Between(-100, 60000));
    }
    if (random.Chance(20)) {
        date.SetStatus(random.Chance(50) ? COleDateTime::null : COleDateTime::invalid);
    }
    return date;
}

ModelValue RandomValue(CRandom& random, const ModelItem& item) {
    ModelValue value;
    value.integer = random.Chance(50) ? random.Pick(kNumbers) : random.Between(-2, 6);
    if (item.kind == IT_COMBO) {
        value.integer = random.Between(-1, static_cast<int>(item.choices.size()));
    }
    value.number = item.kind == IT_CUSTOM ? random.Between(0, 4000) * 0.25 : random.Pick(kReals);
    value.text = item.kind == IT_FILE || item.kind == IT_FOLDER ? random.Pick(kPaths) : random.Pick(kTexts);
    value.flag = random.Chance(50);
    value.date = RandomDate(random);
    value.color = random.Color();
    value.font = RandomFont(random);
    return value;
}

// Mostly a name of its own; some are taken more than once, in one section or in several.
std::wstring RandomName(CRandom& random) {
    const std::wstring name = random.Pick(kNames);
    return random.Chance(70) ? name + L" " + std::to_wstring(random.Between(0, 999)) : name;
}

void AddRandomItem(CRandom& random, CMirroredGrid& grid, UINT section) {
    const bool editable = random.Chance(75);
    const std::wstring name = RandomName(random);
    if (random.Chance(20)) {
        if (random.Chance(35)) {
            grid.AddDistance(section, name, editable, random.Between(0, 400) * 0.25);
        } else {
            grid.AddFigure(section, name, editable, random.Pick(kEditModes));
        }
        return;
    }
    ModelItem item;
    item.kind = static_cast<EItemType>(random.Between(IT_STRING, IT_FONT));
    item.name = name;
    item.editable = editable;
    item.undefined = random.Chance(12);
    switch (item.kind) {
        case IT_INTEGER:
            item.format = random.Pick(kIntegerFormats);
            break;
        case IT_DOUBLE:
            item.format = random.Pick(kDoubleFormats);
            break;
        case IT_DATE:
        case IT_DATETIME:
            item.format = random.Pick(kDateFormats);
            break;
        case IT_COMBO:
            for (int count = random.Between(0, 4); count > 0; --count) {
                item.choices.push_back(random.Pick(kTexts));
            }
            break;
        default:
            break;
    }
    item.value = RandomValue(random, item);
    grid.AddItem(section, item);
}

// Usually a section of the grid, sometimes one that it does not have.
UINT RandomSection(CRandom& random, const CMirroredGrid& grid) {
    const std::vector<ModelSection>& sections = grid.GetModel().sections;
    return sections.empty() || random.Chance(3) ? static_cast<UINT>(random.Between(50, 60))
                                                : random.Pick(sections).id;
}

// kNoId when the grid has no items.
UINT RandomItem(CRandom& random, const CMirroredGrid& grid) {
    const UINT count = grid.GetModel().nextItem;
    return count == 0 ? kNoId : static_cast<UINT>(random.Between(0, static_cast<int>(count) - 1));
}

void AddContents(CRandom& random, CMirroredGrid& grid) {
    if (random.Chance(8)) {
        return;
    }
    for (int count = random.Between(1, 5); count > 0; --count) {
        const UINT before = random.Chance(20) ? RandomSection(random, grid) : kNoId;
        grid.AddSection(random.Chance(90) ? RandomName(random) : L"", random.Chance(25), before);
    }
    for (int count = random.Chance(10) ? random.Between(30, 60) : random.Between(0, 25); count > 0; --count) {
        AddRandomItem(random, grid, RandomSection(random, grid));
    }
}

void ChooseSettings(CRandom& random, CMirroredGrid& grid) {
    const int width = grid.GetModel().client.cx;
    if (random.Chance(70)) {
        grid.SetGutter(random.Chance(80) ? random.Between(0, width) : random.Between(-60, width + 60));
    }
    if (random.Chance(70)) {
        grid.SetMode(random.Chance(95) ? static_cast<UINT>(random.Between(0, 2)) : 7);
    }
    if (random.Chance(60)) {
        grid.SetDisplayFlags(random.Chance(60), random.Chance(60), random.Chance(60), random.Chance(60));
    }
    if (random.Chance(60)) {
        grid.SetBoldFlags(random.Chance(60), random.Chance(40));
    }
    if (random.Chance(80)) {
        grid.SetColors({random.Color(), random.Color(), random.Color(), random.Color(), random.Color(),
                        random.Color(), random.Color(), random.Color()});
    }
    if (random.Chance(50)) {
        grid.SetUndefinedText(random.Pick(kTexts));
    }
    if (random.Chance(50)) {
        grid.SetEmptyListText(random.Pick(kTexts));
    }
    if (random.Chance(20)) {
        grid.SetBooleanTexts(random.Pick(kTexts), random.Pick(kTexts));
    }
}

void ChangeItem(CRandom& random, CMirroredGrid& grid) {
    const UINT id = RandomItem(random, grid);
    if (id == kNoId) {
        return;
    }
    const int choice = random.Between(1, 10);
    if (choice <= 7) {
        grid.SetValue(id, RandomValue(random, *grid.GetModel().FindItem(id)));
    } else if (choice <= 9) {
        grid.SetUndefined(id, random.Chance(60));
    } else {
        grid.SetEditable(id, random.Chance(50));
    }
}

// kNoId when the grid has no custom items.
UINT RandomCustomItem(CRandom& random, const CMirroredGrid& grid) {
    std::vector<UINT> ids;
    for (const ModelSection& section : grid.GetModel().sections) {
        for (const ModelItem& item : section.items) {
            if (item.kind == IT_CUSTOM) {
                ids.push_back(item.id);
            }
        }
    }
    return ids.empty() ? kNoId : random.Pick(ids);
}

void MoveFocus(CRandom& random, CMirroredGrid& grid) {
    const UINT item = random.Chance(40) ? RandomCustomItem(random, grid) : RandomItem(random, grid);
    if (item != kNoId && random.Chance(70)) {
        grid.FocusItem(item);
    } else if (!grid.GetModel().sections.empty() && random.Chance(80)) {
        grid.FocusSection(random.Pick(grid.GetModel().sections).id);
    } else {
        grid.FocusItem(kNoId);
    }
}

// As high as the contents, or nearly so: where the scroll bar comes and goes.
void FitHeight(CRandom& random, CMirroredGrid& grid) {
    const GridModel& model = grid.GetModel();
    const int height = model.GetContentHeight() + random.Between(-1, 1);
    if (height >= 1 && height <= 600) {
        grid.Resize({model.client.cx, height});
        grid.SetMode(model.mode);  // also where a resize alone computes no new scroll range
    }
}

void ChangeState(CRandom& random, CMirroredGrid& grid) {
    const GridModel& model = grid.GetModel();
    const int choice = random.Between(1, 20);
    if (choice <= 6) {
        MoveFocus(random, grid);
    } else if (choice <= 12) {
        grid.ScrollTo(random.Between(0, model.GetContentHeight() + 20));
    } else if (choice <= 14) {
        grid.Resize(ChooseSize(random));
    } else if (choice <= 16 && !model.sections.empty()) {
        grid.SetCollapsed(random.Pick(model.sections).id, random.Chance(50));
    } else if (choice <= 17) {
        grid.SetMode(static_cast<UINT>(random.Between(0, 3)));
    } else if (choice <= 18) {
        grid.AcceptValues();
    } else if (choice == 19) {
        FitHeight(random, grid);
    } else if (choice == 20) {
        grid.ResetContents();
        AddContents(random, grid);
    }
}

}  // namespace

COLORREF CRandom::Color() {
    return static_cast<COLORREF>(m_engine() & 0xFFFFFFU);
}

CRect CRandom::Area(CSize size) {
    const int left = Between(-5, size.cx - 1);
    const int top = Between(-5, size.cy - 1);
    return {left, top, Between(left + 1, size.cx + 5), Between(top + 1, size.cy + 5)};
}

void ChooseFont(CRandom& random, CMirrorParent& parent) {
    const LOGFONTW font = RandomFont(random);
    parent.SetAnsweredFont(random.Chance(85) ? &font : nullptr);
}

CSize ChooseSize(CRandom& random) {
    const int width = random.Chance(15) ? random.Between(1, 60) : random.Between(61, 420);
    const int height = random.Chance(15) ? random.Between(1, 60) : random.Between(61, 400);
    return {width, height};
}

void FillAtRandom(CRandom& random, CMirroredGrid& grid) {
    ChooseSettings(random, grid);
    AddContents(random, grid);
    for (int count = random.Between(0, 12); count > 0; --count) {
        ChangeItem(random, grid);
    }
    for (int count = random.Between(0, 8); count > 0; --count) {
        ChangeState(random, grid);
    }
    if (random.Chance(60)) {
        MoveFocus(random, grid);
    }
}

}  // namespace tests

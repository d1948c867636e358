// The gallery's grid as assistive technology finds it: a client in another process walks the rows and acts on
// them.
#include <algorithm>
#include <cstdlib>

#include "tests/e2e/GalleryWindow.h"
#include "tests/e2e/Programs.h"

namespace {

constexpr const char* theGrid = "101";
constexpr const char* theEdit = "edit";
constexpr const char* theList = "popup";

// What the rows say when the gallery opens, in the display with section headers.
constexpr const char* initialRows = R"rows(outline "Values" [focused]
  outline item "Basics" [expanded] -> Collapse (-)
  outline item "Name" = "Oak door" -> Edit (F2)
  outline item "Notes" = "Two coats of paint¶Key at the office" -> Edit (F2)
  outline item "Count" = "3" -> Edit (F2)
  outline item "Width" = "80.5" -> Edit (F2)
  outline item "Weight" = "31.250 kg" -> Edit (F2)
  outline item "Choices" [expanded] -> Collapse (-)
  outline item "Swing" = "Right" -> Edit (F2)
  outline item "No choices" = "" -> Edit (F2)
  outline item "Glazed" = "True" -> Edit (F2)
  outline item "Dates" [expanded] -> Collapse (-)
  outline item "Ordered" = "2024-03-15" -> Edit (F2)
  outline item "Delivered" = "2024-04-02 10:30" -> Edit (F2)
  outline item "Paid" = "" -> Edit (F2)
  outline item "Paths" [expanded] -> Collapse (-)
  outline item "Drawing" = "C:\windows\win.ini" -> Edit (F2)
  outline item "Archive" = "C:\windows" -> Edit (F2)
  outline item "Looks" [expanded] -> Collapse (-)
  outline item "Paint" = "200; 80; 40" -> Edit (F2)
  outline item "Lettering" = "Tahoma; 8pt" -> Edit (F2)
  outline item "Gloss" = "40%"
  outline item "States" [expanded] -> Collapse (-)
  outline item "Article" = "D-4711" [read-only]
  outline item "In stock" = "True" [read-only]
  outline item "Maker" = "(not given)" -> Edit (F2)
  outline item "Rating" = "(not given)" -> Edit (F2)
  outline item "Empty" [expanded] -> Collapse (-)
  outline item "Many rows" [collapsed] -> Expand (+)
)rows";

class Accessible : public GalleryWindow {
protected:
    // What the client prints, called for a window of the gallery with further arguments.
    static std::string Client(const std::string& control, const std::string& arguments = {}) {
        const std::string program = (ArchitectureFolder() / "tests" / "AccessibleWalk.exe").string();
        std::string output =
            OutputOf("\"$WINE\" '" + program + "' 'Grid gallery' " + control + " " + arguments + " 2>&1");
        std::erase(output, '\r');
        return output;
    }
    static std::string Walk(const std::string& control = theGrid) { return Client(control); }
    static void Do(const std::string& name, const std::string& control = theGrid) {
        EXPECT_EQ(Client(control, "do '" + name + "'"), "done\n") << name;
    }
    // Waits until the walk has all of the lines.
    static void ExpectLines(const std::vector<std::string>& lines, const std::string& control = theGrid) {
        std::string all;
        const auto has = [&](const std::string& line) { return all.find(line + '\n') != std::string::npos; };
        EXPECT_TRUE(WaitUntil([&] {
            all = Walk(control);
            return std::all_of(lines.begin(), lines.end(), has);
        })) << all;
    }
    static std::string Replaced(std::string text, const std::string& from, const std::string& to) {
        const std::size_t at = text.find(from);
        EXPECT_NE(at, std::string::npos) << from;
        return at == std::string::npos ? text : text.replace(at, from.size(), to);
    }
};

TEST_F(Accessible, EveryKindOfValueIsTold) {
    ASSERT_NO_FATAL_FAILURE(Open());
    EXPECT_EQ(Walk(), initialRows);
    CloseExpecting({});
}

TEST_F(Accessible, WhatTheUserChangesIsTold) {
    ASSERT_NO_FATAL_FAILURE(Open());
    ClickValue("Name");
    TypeOver("Ash door");
    PressKeys("Return");
    ExpectChanges({"Name = Ash door"});
    ClickValue("Maker");
    Type("Miller");
    PressKeys("Return");
    ExpectChanges({"Name = Ash door", "Maker = Miller"});
    std::string rows = Replaced(initialRows, "Oak door", "Ash door");
    rows =
        Replaced(rows, R"row("Maker" = "(not given)")row", R"row("Maker" = "Miller" [selected, focused])row");
    EXPECT_EQ(Walk(), rows);
    CloseExpecting({"Name = Ash door", "Maker = Miller"});
}

TEST_F(Accessible, ScrolledAndCollapsedRowsAreTold) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Do("Many rows");
    ExpectLines({R"(  outline item "Many rows" [expanded, selected, focused] -> Collapse (-))",
                 R"(  outline item "Row 100" = "100" [off-screen] -> Edit (F2))"});
    EXPECT_EQ(Client(theGrid, "select 'Row 100'"), "done\n");
    ExpectLines({R"(  outline item "Row 100" = "100" [selected, focused] -> Edit (F2))",
                 R"(  outline item "Basics" [off-screen, expanded] -> Collapse (-))"});
    Do("Many rows");
    for (const char* section : {"Basics", "Choices", "Dates", "Paths", "Looks", "States"}) {
        Do(section);
    }
    ExpectLines({R"(  outline item "States" [collapsed, selected, focused] -> Expand (+))"});
    EXPECT_EQ(Walk(), R"(outline "Values" [focused]
  outline item "Basics" [collapsed] -> Expand (+)
  outline item "Choices" [collapsed] -> Expand (+)
  outline item "Dates" [collapsed] -> Expand (+)
  outline item "Paths" [collapsed] -> Expand (+)
  outline item "Looks" [collapsed] -> Expand (+)
  outline item "States" [collapsed, selected, focused] -> Expand (+)
  outline item "Empty" [expanded] -> Collapse (-)
  outline item "Many rows" [collapsed] -> Expand (+)
)");
    CloseExpecting({});
}

TEST_F(Accessible, ASortedDisplayIsAList) {
    ASSERT_NO_FATAL_FAILURE(Open());
    gallery.Press("alt+s");
    ExpectLines({R"(list "Values")", R"(  list item "Archive" = "C:\windows" -> Edit (F2))"});
    const std::string rows = Walk();
    EXPECT_LT(rows.find("\"Archive\""), rows.find("\"Article\""));
    EXPECT_EQ(rows.find("outline"), std::string::npos);
    EXPECT_EQ(rows.find('!'), std::string::npos) << rows;
    CloseExpecting({});
}

TEST_F(Accessible, AValueIsEditedByItsDefaultAction) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Do("Width");
    ExpectLines({R"(text "Width" = "80.5" [focused])"}, theEdit);
    TypeOver("12.5");
    PressKeys("Return");
    ExpectChanges({"Width = 12.5"});
    ExpectLines({R"(  outline item "Width" = "12.5" [selected, focused] -> Edit (F2))"});
    CloseExpecting({"Width = 12.5"});
}

TEST_F(Accessible, AListIsChosenFromByItsDefaultAction) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Do("Swing");
    ExpectLines({R"(list "Swing" = "Right" [focused])"}, theList);
    EXPECT_EQ(Walk(theList), R"(list "Swing" = "Right" [focused]
  list item "Left" -> Select
  list item "Right" [selected, focused] -> Select (Enter)
  list item "Both ways" -> Select
)");
    Do("Both ways", theList);
    ExpectChanges({"Swing = Both ways"});
    CloseExpecting({"Swing = Both ways"});
}

TEST_F(Accessible, ADialogOpensWithoutKeepingTheClientWaiting) {
    ASSERT_NO_FATAL_FAILURE(Open());
    Do("Paint");
    const Window dialog = Window::WithTitle("Color");
    ASSERT_TRUE(dialog.IsValid());
    EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
    CloseExpecting({});
}

}  // namespace

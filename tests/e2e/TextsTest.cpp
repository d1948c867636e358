// Texts without a resource compiler: modules that tavrincheck makes, loaded by the module in the stand-in
// host and chosen there.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "tests/e2e/ItemRun.h"
#include "tests/e2e/Programs.h"

namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

class Texts : public ItemRun {
protected:
    // Runs the native checker in the host's folder; what it printed.
    std::string Tavrincheck(const std::string& arguments) const {
        return OutputOf("cd '" + host.Folder().string() + "' && '" NATIVE_BIN_DIR "/tavrincheck' " +
                        arguments + " --machine " + ArchitectureName() + " 2>&1");
    }
    static std::string ScriptIn(const std::string& language) {
        return "'" SAMPLES_DIR "/texts/TavrinRes." + language + ".rc'";
    }

    // Opens the door's dialog from LISP; closes it.
    void OpenDoor(const std::vector<std::string>& options, const std::string& title) {
        std::vector<std::string> arguments = {"--check-heap", "--items", "samples", "--eval",
                                              R"((tavrinwnd (item-begin "door" nil) 1.0 1))"};
        arguments.insert(arguments.begin() + 3, {"--eval", "(load \"item.lsp\")"});
        arguments.insert(arguments.begin(), options.begin(), options.end());
        host.Start(arguments);
        ExpectDialog(title);
        EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
        EXPECT_EQ(host.Wait(), 0) << host.Errors();
    }

    // Chooses the entry of a menu of the main window.
    void ChooseInMenu(const Window& main, const std::string& menuKey, const std::string& keys) const {
        const Window menu = Window::OpenedBy([&] { main.Press(menuKey); }, "devhost.exe");
        ASSERT_TRUE(menu.IsValid());
        PressKeys(keys);
        EXPECT_TRUE(WaitUntil([&] { return !menu.IsOpen(); }));
    }
};

TEST_F(Texts, TheModuleLoadsWhatTheCheckerMade) {
    UseSamples();
    EXPECT_EQ(Tavrincheck("texts " + ScriptIn("en") + " -o English.dll"),
              "English.dll: 84 texts, for " + ArchitectureName() + " hosts\n");
    OpenDoor({"--texts", "English.dll"}, "Hinged door");
    EXPECT_TRUE(fs::remove(host.Folder() / "English.dll"));
}

TEST_F(Texts, TheCheckerMakesTheSameBytesOnWindows) {
    Tavrincheck("texts " + ScriptIn("it") + " -o native.dll");
    OutputOf("cd '" + host.Folder().string() + "' && '" SCRIPTS_DIR "/wine' '" +
             (ProgramFolder() / "tavrincheck.exe").string() + "' texts " + ScriptIn("it") +
             " -o windows.dll");
    ASSERT_GT(BytesOf(host.Folder() / "native.dll").size(), 1000u);
    EXPECT_EQ(BytesOf(host.Folder() / "native.dll"), BytesOf(host.Folder() / "windows.dll"));
}

TEST_F(Texts, TheLanguageIsChosenInTheMenuWhileDevHostRuns) {
    UseSamples();
    Tavrincheck("texts " + ScriptIn("it") + " -o Chosen.dll");
    host.Start({"--check-heap", "--items", "samples", "--texts", "Chosen.dll", "--stay", "--eval",
                "(load \"item.lsp\")"});
    const Window main = Window::WithTitle("DevHost");
    ASSERT_TRUE(main.IsValid()) << host.Errors();
    main.LookWhenStill();
    ASSERT_TRUE(main.Activate());
    TypeText(R"((tavrinwnd (item-begin "door" nil) 1.0 1))");
    PressKeys("Return");
    ExpectDialog("Porta a battente");
    EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
    // After the chosen file and the one beside DevHost.exe, both Italian, comes en\TavrinRes.dll.
    ASSERT_TRUE(main.Activate());
    ChooseInMenu(main, "alt+l", "Down Down Return");
    EXPECT_TRUE(WaitUntil([&] { return host.Output().find("loaded again") != std::string::npos; }))
        << host.Output() << host.Errors();
    TypeText(R"((tavrinwnd (item-begin "door" nil) 1.0 1))");
    PressKeys("Return");
    ExpectDialog("Hinged door");
    EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
    ASSERT_TRUE(main.Activate());
    EXPECT_TRUE(main.PressUntilClosed("alt+F4"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

// What a translator does: DevHost runs, and the module of another language is made.
TEST_F(Texts, AModuleThatIsMadeWhileDevHostRunsIsOfferedAfterReloadOrRescan) {
    fs::create_directories(host.Folder() / "mine");
    Tavrincheck("new cabinet --in mine");
    host.Start({"--items", "mine", "--stay", "--eval", "(load \"item.lsp\")"});
    const Window main = Window::WithTitle("DevHost");
    ASSERT_TRUE(main.IsValid()) << host.Errors();
    main.LookWhenStill();
    host.Write("de.rc", "LANGUAGE LANG_GERMAN, SUBLANG_GERMAN\nSTRINGTABLE { 1501 \"Schrank\" }\n");
    Tavrincheck("texts de.rc -o mine/texts/de/TavrinRes.dll");
    ASSERT_TRUE(main.Activate());
    main.Press("F5");
    EXPECT_TRUE(WaitUntil([&] { return host.Output().find("loaded again") != std::string::npos; }));
    ChooseInMenu(main, "alt+l", "g");
    EXPECT_TRUE(WaitUntil([&] {
        return host.Output().find("mine\\texts\\de\\TavrinRes.dll") != std::string::npos;
    })) << host.Output();
    host.Write("fr.rc", "LANGUAGE LANG_FRENCH, SUBLANG_FRENCH\nSTRINGTABLE { 1501 \"Armoire\" }\n");
    Tavrincheck("texts fr.rc -o mine/texts/fr/TavrinRes.dll");
    ChooseInMenu(main, "alt+i", "r");
    EXPECT_TRUE(WaitUntil([&] { return host.Output().find("1 item checked") != std::string::npos; }));
    ChooseInMenu(main, "alt+l", "f");
    EXPECT_TRUE(WaitUntil([&] {
        return host.Output().find("mine\\texts\\fr\\TavrinRes.dll") != std::string::npos;
    })) << host.Output();
    ASSERT_TRUE(main.Activate());
    EXPECT_TRUE(main.PressUntilClosed("alt+F4"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(Texts, AFileThatIsReplacedIsReadAgainByReload) {
    UseSamples();
    Tavrincheck("texts " + ScriptIn("it") + " -o Chosen.dll");
    host.Start({"--items", "samples", "--texts", "Chosen.dll", "--stay", "--eval", "(load \"item.lsp\")"});
    const Window main = Window::WithTitle("DevHost");
    ASSERT_TRUE(main.IsValid()) << host.Errors();
    main.LookWhenStill();
    Tavrincheck("texts " + ScriptIn("en") + " -o Chosen.dll");
    ASSERT_TRUE(main.Activate());
    main.Press("F5");
    EXPECT_TRUE(WaitUntil([&] { return host.Output().find("loaded again") != std::string::npos; }));
    TypeText(R"((tavrinwnd (item-begin "door" nil) 1.0 1))");
    PressKeys("Return");
    ExpectDialog("Hinged door");
    EXPECT_TRUE(dialog.PressUntilClosed("Escape"));
    ASSERT_TRUE(main.Activate());
    EXPECT_TRUE(main.PressUntilClosed("alt+F4"));
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
}

TEST_F(Texts, TextsThatCannotBeLoadedAreNamed) {
    host.Start({"--texts", "none.dll", "--eval", "1"});
    EXPECT_EQ(host.Wait(), 1);
    EXPECT_NE(host.Errors().find("the texts 'none.dll' do not exist: give --texts a TavrinRes.dll"),
              std::string::npos)
        << host.Errors();
    host.Write("other.dll", "not a module");
    host.Start({"--texts", "other.dll", "--eval", "1"});
    EXPECT_EQ(host.Wait(), 1);
    EXPECT_NE(host.Errors().find("the texts 'other.dll' cannot be loaded: this DevHost needs a " +
                                 std::string(ArchitectureName() == "x64" ? "64" : "32") + "-bit module"),
              std::string::npos)
        << host.Errors();
}

// From the name alone to a drawing.
TEST_F(Texts, ANewItemIsTriedAtOnce) {
    fs::create_directories(host.Folder() / "mine");
    EXPECT_NE(Tavrincheck("new cabinet --in mine").find("mine/cabinet/cabinet.TXT\n"), std::string::npos);
    Call("cabinet", "mine");
    Choose(1, 0, 2, 1);
    ExpectDialog("Cabinet");
    Type(0, "450");
    PlaceAt("0,0");
    const SvgDrawing drawing = Drawing();
    EXPECT_EQ(drawing.Boxes(450, 800), 1);
    EXPECT_NE(host.Read("mine/cabinet/cabinet.TXT").find("$1 = \"<<3002>>\"D450\r\n"), std::string::npos);
}

}  // namespace

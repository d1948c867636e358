// Follows samples/README.md as a reader does who has unpacked a release: types in the files, runs the
// commands, and tries the new item.
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>

#include "tests/e2e/ItemRun.h"
#include "tests/e2e/Programs.h"

namespace {

namespace fs = std::filesystem;

// A fenced block of the guide.
struct Block {
    std::string file;      // what the line in front of it names: **`shelf/shelf.TXT`**; or empty
    std::string language;  // after the fence
    std::string text;
};

std::vector<Block> ReadGuide() {
    std::vector<Block> blocks;
    std::ifstream guide(SAMPLES_DIR "/README.md");
    std::string file;
    for (std::string line; std::getline(guide, line);) {
        if (line.starts_with("**`") && line.ends_with("`**")) {
            file = line.substr(3, line.size() - 6);
        }
        if (!line.starts_with("```")) {
            continue;
        }
        Block block{file, line.substr(3), {}};
        file.clear();
        while (std::getline(guide, line) && line != "```") {
            block.text += line + '\n';
        }
        blocks.push_back(block);
    }
    return blocks;
}

class SampleGuide : public ItemRun {
protected:
    // The programs with `samples` beside them, and the shelf of the guide among the samples.
    void SetUp() override {
        for (const char* name : {"DevHost.exe", "TavrinWnd.dll", "TD_Alloc.dll"}) {
            fs::copy(ProgramFolder() / name, host.Folder() / name);
        }
        host.UseProgram(host.Folder() / "DevHost.exe");
        UseSamples();
        fs::create_directories(Samples() / "shelf" / "slides");
        for (const Block& block : guide) {
            if (!block.file.empty()) {
                TypeIn(block);
            }
        }
        Run("rsvg-convert");
        fs::create_directory(host.Folder() / "en");
        Run("tavrincheck texts texts/TavrinRes.it.rc -o");
        ASSERT_TRUE(fs::exists(host.Folder() / "en/TavrinRes.dll"));
    }

    fs::path Samples() const { return host.Folder() / "samples"; }

    // The block that follows the line with this text.
    const Block& BlockWith(const std::string& text) const {
        for (const Block& block : guide) {
            if (block.text.find(text) != std::string::npos) {
                return block;
            }
        }
        ADD_FAILURE() << "the guide says nothing of " << text;
        return guide.front();
    }

    // Texts go in front of END; other files are new.
    void TypeIn(const Block& block) const {
        const std::string name = "samples/" + block.file;
        std::string text = block.text;
        if (block.file.ends_with(".rc")) {
            const std::string before = host.Read(name);
            const std::size_t end = before.rfind("END");
            text = before.substr(0, end) + text + before.substr(end);
        } else {
            EXPECT_FALSE(fs::exists(host.Folder() / name)) << name;
        }
        host.Write(name, text);
    }

    // Runs the commands of the block that names this program, where the guide says: in `samples`. What they
    // printed.
    std::string Run(const std::string& program) const {
        constexpr std::string_view kDone = "done\n";
        std::istringstream commands(BlockWith(program).text);
        std::string printed;
        for (std::string command; std::getline(commands, command);) {
            printed += OutputOf("PATH=\"" NATIVE_BIN_DIR ":$PATH\" && cd '" + Samples().string() + "' && { " +
                                command + "; } 2>&1 && printf '" + std::string(kDone) + "'");
            EXPECT_TRUE(printed.ends_with(kDone)) << command << '\n' << printed;
            printed.resize(printed.size() - (printed.ends_with(kDone) ? kDone.size() : 0));
        }
        return printed;
    }

    const std::vector<Block> guide = ReadGuide();
};

TEST_F(SampleGuide, MakesAShelfThatIsChosenSetAndDrawn) {
    host.StartProgram({"--drawing", "drawing.svg"});
    const Window main = Window::WithTitle("DevHost");
    ASSERT_TRUE(main.IsValid()) << host.Errors();
    main.LookWhenStill();
    // The second entry of the menu Items, after the door.
    const Window menu = Window::OpenedBy([&] { main.Press("alt+i"); }, "devhost.exe");
    ASSERT_TRUE(menu.IsValid());
    PressKeys("Down Return");
    // It has no title either.
    EXPECT_TRUE(WaitUntil([&] { return !menu.IsOpen(); }));
    Choose(1, 0, 2, 1);
    ExpectDialog("Scaffale");
    Type(0, "950");
    PlaceAt("0,0");
    EXPECT_TRUE(WaitUntil([this] { return host.Output().find("\nT") != std::string::npos; }));
    EXPECT_TRUE(main.PressUntilClosed("alt+F4"));
    const SvgDrawing drawing = Drawing();
    EXPECT_EQ(drawing.Boxes(20, 1800), 2) << "the sides";
    EXPECT_EQ(drawing.Boxes(910, 20), 5) << "the boards between them";
    EXPECT_EQ(drawing.Boxes(910, 300), 1) << "a board in plan";
    EXPECT_NE(host.Read("samples/shelf/shelf.TXT").find("$1 = \"<<1801>>\"D950\r\n"), std::string::npos);
}

TEST_F(SampleGuide, FindsNothingWrongWithTheShelf) {
    EXPECT_EQ(Run("tavrincheck --texts"), "");
}

TEST_F(SampleGuide, ChecksTheShelfWithAScriptThatPrintsWhatItSays) {
    const Block& command = BlockWith("--script");
    std::istringstream words(command.text);
    std::vector<std::string> arguments;
    for (std::string word; words >> word;) {
        arguments.push_back(word);
    }
    ASSERT_EQ(arguments.front(), "DevHost.exe");
    arguments.erase(arguments.begin());
    host.StartProgram(arguments);
    EXPECT_EQ(host.Wait(), 0) << host.Errors();
    std::string output = host.Output();
    std::erase(output, '\r');
    const Block& printed = *(&command + 1);
    EXPECT_EQ(output, printed.text);
    const SvgDrawing drawing(host.Read("shelf.svg"));
    EXPECT_EQ(drawing.Boxes(910, 20), 10) << "two shelves of five boards";
}

}  // namespace

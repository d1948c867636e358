// What an author of items meets: refused values, used working files, findings of the check.
#include "tests/e2e/ItemRun.h"

namespace {

class Author : public ItemRun {};

TEST_F(Author, ARefusedValueIsNamedByItsLabelAndAskedForAgain) {
    UseSamples();
    Call("door");
    Choose(0, 0, 3, 2);
    ExpectDialog("Porta a battente");
    Type(8, "181");
    const Window box = Window::OpenedBy([this] { PressOk(); }, "devhost.exe");
    ASSERT_TRUE(box.IsValid());
    EXPECT_NE(host.Output().find("Angolo di apertura: il valore deve essere compreso tra 0 e 180."),
              std::string::npos);
    EXPECT_TRUE(box.PressUntilClosed("Return"));
    ExpectDialog("Porta a battente");
    EXPECT_NE(host.Read("samples/door/door.TXT").find("$9 = \"<<1509>>\"R 75\r\n"), std::string::npos)
        << "the bad value is no default";
    Type(8, "80");
    PlaceAt("0,0");
    EXPECT_EQ(Drawing().Arcs(900), 1);
    EXPECT_NE(host.Read("samples/door/door.TXT").find("$9 = \"<<1509>>\"R80\r\n"), std::string::npos);
}

// What a fresh DevHost suggests at its prompt.
TEST_F(Author, ACallTypedAtThePromptOpensTheDialogOfAnItemThatWasNotChosenBefore) {
    UseSamples();
    host.Start({"--items", "samples"});
    const Window main = Window::WithTitle("DevHost");
    ASSERT_TRUE(main.IsValid()) << host.Errors();
    main.LookWhenStill();
    ASSERT_TRUE(main.Activate());
    TypeText("(door)");
    PressKeys("Return");
    Choose(0, 0, 3, 2);
    ExpectDialog("Porta a battente");
    PlaceAt("0,0");
    EXPECT_TRUE(WaitUntil([this] { return host.Output().find("\nT") != std::string::npos; }));
    EXPECT_TRUE(main.PressUntilClosed("alt+F4"));
    EXPECT_EQ(host.Wait(), 0);
    EXPECT_EQ(host.Errors(), "");
}

TEST_F(Author, ADialogOnAUsedWorkingFileIsExplained) {
    host.UseSample("door");
    host.Write("door_TMP.TXT", "x\r\n<<2001>>\r\nVAR\r\n#1 = 900\r\nEND_VAR\r\n");
    host.Start({"--eval", R"((tavrinwnd "door" 1.0 1))"});
    const Window empty = Window::WithTitle("Porta a battente");
    ASSERT_TRUE(empty.IsValid()) << host.Errors();
    EXPECT_NE(host.Output().find("; note: door_TMP.TXT:4:1: an OK has replaced this parameter by its value"),
              std::string::npos)
        << host.Output();
    EXPECT_TRUE(empty.PressUntilClosed("Escape"));
    EXPECT_EQ(host.Wait(), 0);
}

TEST_F(Author, TheItemFollowsTheMouseWhileItIsPlacedAndEscapeLeaves) {
    UseSamples();
    Call("window");
    Choose(1, 0, 3, 2);
    ExpectDialog("Finestra");
    PressOk();
    const Window main = WaitForQuestion();
    constexpr Rgb placed{130, 140, 155};
    const auto gray = [&] {
        const Screenshot now = main.Look();
        int count = 0;
        for (int y = 0; y < 400; ++y) {
            for (int x = 0; x < now.Width(); ++x) {
                count += now.At(x, y) == placed;
            }
        }
        return count;
    };
    main.Wheel(400, 300, -1);
    EXPECT_TRUE(WaitUntil([&] { return gray() > 200; }));
    main.Press("Escape");
    EXPECT_EQ(host.Wait(), 1) << "cancelled";
}

}  // namespace

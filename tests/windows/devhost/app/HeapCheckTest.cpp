// The allocator libraries: blocks that are kept are counted, and each misuse is caught by the checking one,
// behind guard pages and, when those have run out, on the ordinary heap ("1" as the argument).
#include <gtest/gtest.h>

#include "tests/windows/devhost/app/HostProcess.h"

using namespace tests;

namespace {

void ExpectMisuse(const std::wstring& call, const std::string& message) {
    const Outcome outcome = RunHost({L"--check-heap", L"--eval", call});
    EXPECT_EQ(outcome.status, 4u);
    EXPECT_EQ(outcome.output, "");
    EXPECT_NE(outcome.errors.find("heap check: "), std::string::npos);
    EXPECT_NE(outcome.errors.find(message), std::string::npos) << outcome.errors;
}

TEST(Heap, BlocksThatAreKeptAreCountedAndFail) {
    const Outcome outcome = RunHost({L"--eval", L"(leak 3 100) (leak 1 0)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "nil\nnil\n; heap: 4 blocks held, 300 bytes\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST(Heap, ManyBlocksOfEverySizeKeepTheirBytes) {
    EXPECT_EQ(Evaluate(L"(churn 300)"), "0\n");
}

TEST(HeapCheck, BlocksThatAreKeptAreListed) {
    const Outcome outcome = RunHost({L"--check-heap", L"--eval", L"(leak 2 3)"});
    EXPECT_EQ(outcome.status, 1u);
    EXPECT_EQ(outcome.output, "nil\n; heap: 2 blocks held, 6 bytes\n");
    EXPECT_EQ(outcome.errors,
              "heap check: block 1 (3 bytes, new) is held, bytes CD CD CD\n"
              "heap check: block 2 (3 bytes, new) is held, bytes CD CD CD\n");
}

TEST(HeapCheck, ManyBlocksOfEverySizeKeepTheirBytes) {
    EXPECT_EQ(Evaluate(L"(churn 300)", {L"--check-heap"}), "0\n");
}

TEST(HeapCheck, AnAccessBehindABlockFaultsWhereItIsMade) {
    ExpectMisuse(L"(write-far-behind)", " writes 0 bytes past the end of block 1 (32 bytes, new)");
    ExpectMisuse(L"(write-far-behind)", "heap check: TestPlugin.dll+0x");
    ExpectMisuse(L"(read-behind)", " reads 0 bytes past the end of block 1 (4096 bytes, new)");
}

TEST(HeapCheck, AWriteAroundABlockIsFoundWhenItIsDeleted) {
    ExpectMisuse(L"(write-behind)", "block 1 (5 bytes, new) was written past its end");
    ExpectMisuse(L"(write-behind 1)", "block 20001 (5 bytes, new) was written past its end");
    ExpectMisuse(L"(write-in-front)", "block 1 (5 bytes, new) was written before its start");
    ExpectMisuse(L"(write-in-front 1)", "block 20001 (5 bytes, new) was written before its start");
}

TEST(HeapCheck, AWriteToADeletedBlockIsFound) {
    ExpectMisuse(L"(write-after-delete)", " writes block 1 (5 bytes, new) after it was deleted");
    ExpectMisuse(L"(write-after-delete 1)", "block 20001 (5 bytes, new) was written after it was deleted");
}

TEST(HeapCheck, AWrongDeleteIsFound) {
    ExpectMisuse(L"(delete-twice)", "block 1 (5 bytes, new) was deleted twice");
    ExpectMisuse(L"(delete-twice 1)", "block 20001 (5 bytes, new) was deleted twice");
    ExpectMisuse(L"(delete-foreign)", " is no block of this heap");
    ExpectMisuse(L"(delete-with-the-other)", "block 1 (5 bytes, new) was deleted with delete[]");
    ExpectMisuse(L"(delete-with-the-other 1)", "block 20001 (5 bytes, new) was deleted with delete[]");
}

TEST(HeapCheck, AChosenAllocationFailsOnce) {
    EXPECT_EQ(Evaluate(L"(fail-one-allocation 0)", {L"--check-heap"}), "(0 5)\n");
    EXPECT_EQ(Evaluate(L"(fail-one-allocation 1)", {L"--check-heap"}), "(1 5)\n");
    EXPECT_EQ(Evaluate(L"(fail-one-allocation 4)", {L"--check-heap"}), "(4 5)\n");
    EXPECT_EQ(Evaluate(L"(fail-one-allocation 6)", {L"--check-heap"}), "(0 5)\n");
}

}  // namespace

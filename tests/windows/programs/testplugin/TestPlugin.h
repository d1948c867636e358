// Shared declarations of the test plug-in. Each of its LISP functions is a function that gets its arguments
// from the host and sets a result there.
#pragma once

#include <windows.h>

#include "sds/sds.h"

namespace tests {

// A function of the host, from whatever executable runs this: HOST(sds_retint)(5).
#define HOST(function) reinterpret_cast<decltype(&function)>(reinterpret_cast<void*>(FindInHost(#function)))
FARPROC FindInHost(const char* function);

struct Command {
    const wchar_t* name;
    void (*run)();
};

// The argument `index` of the running call, or a default when it does not exist or has another type.
int ShortArgument(int index, int otherwise = 0);
double RealArgument(int index, double otherwise = 0);
const wchar_t* TextArgument(int index);  // null when it is no text

// Calls.cpp: each uses one function of the interface; most return the status and the results.
void Echo();
void GiveInt();
void GiveNil();
void GiveNothing();
void GiveList();
void GiveWrongLists();
void FailWith();
void AlertWith();
void FindFile();
void ReadVariable();
void FormatLength();
void ReadLength();
void UseOtherThread();
void UseBadPointers();
void DefineOddNames();

// Picks.cpp
void PickPoint();
void PickDistance();
void PickTwiceAtOnce();
void PickWhileDisabled();
void PickBehindDialog();

// HeapMisuse.cpp
void Leak();
void Churn();
void WriteBehind();
void WriteFarBehind();
void ReadBehind();
void WriteInFront();
void WriteAfterDelete();
void DeleteTwice();
void DeleteForeign();
void DeleteWithTheOther();
void FailOneAllocation();

// Crashes.cpp
void Crash();
void CrashInWindow();
void CrashInRuntime();
void ThrowOut();
void Abort();

}  // namespace tests

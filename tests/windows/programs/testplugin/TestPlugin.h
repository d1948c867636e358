// What the files of the test plug-in share. Each of its LISP functions is a plain function that fetches its
// arguments from the host and sets a result there.
#pragma once

#include <windows.h>

#include "sds/sds.h"

// A function of the host, from whatever executable runs this: HOST(sds_retint)(5).
#define HOST(function) reinterpret_cast<decltype(&function)>(reinterpret_cast<void*>(FindInHost(#function)))
FARPROC FindInHost(const char* function);

struct SCommand {
    const wchar_t* name;
    void (*run)();
};

// The `index`-th argument of the running call, or a default when there is none of that type.
int ShortArgument(int index, int otherwise = 0);
double RealArgument(int index, double otherwise = 0);
const wchar_t* TextArgument(int index);  // null when it is no text

// Calls.cpp: each uses one function of the interface; most give back the status and what they got.
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

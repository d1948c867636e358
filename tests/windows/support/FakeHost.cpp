#define SDS_HOST
#include "tests/windows/support/FakeHost.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cwchar>
#include <string>

#include "sds/sds.h"

FakeHost fakeHost;

namespace {

std::string Narrow(const wchar_t* text) {
    std::string narrow;
    for (; *text != L'\0'; ++text) {
        narrow += *text < 0x80 ? static_cast<char>(*text) : '?';
    }
    return narrow;
}

std::string ListText(const sds_resbuf* list) {
    std::string text = "(";
    for (; list != nullptr; list = list->next) {
        if (text.size() > 1) {
            text += ' ';
        }
        if (list->type == RTSTR) {
            text += '"' + Narrow(list->value.string) + '"';
        } else {
            text += std::to_string(list->value.integer);
        }
    }
    return text + ')';
}

std::string PointText(const double* point) {
    if (point == nullptr) {
        return "none";
    }
    char text[100];
    std::snprintf(text, sizeof text, "%g %g %g", point[0], point[1], point[2]);
    return text;
}

bool IsFile(const std::wstring& path) {
    const DWORD attributes = GetFileAttributesW(path.c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

int Found(const std::wstring& path, wchar_t* result, size_t capacity) {
    if (path.size() >= capacity || !IsFile(path)) {
        return RTNORM - 1;
    }
    std::wmemcpy(result, path.c_str(), path.size() + 1);
    return RTNORM;
}

bool Fails(const char* function) {
    return fakeHost.failing == function;
}

int StatusOf(const char* function) {
    return Fails(function) ? RTNORM - 1 : RTNORM;
}

// Lists handed to the module live in the host, outside the module's heap, until the program ends.
sds_resbuf* NewListItem() {
    return static_cast<sds_resbuf*>(std::calloc(1, sizeof(sds_resbuf)));
}

}  // namespace

int sds_defun(const wchar_t* name, short code) {
    fakeHost.defined.emplace_back(name, code);
    return Fails("sds_defun") ? 0 : fakeHost.defunStatus;
}

int sds_undef(const wchar_t* name, short code) {
    fakeHost.undefined.emplace_back(name, code);
    return Fails("sds_undef") ? 0 : fakeHost.defunStatus;
}

int sds_getfuncode(void) {
    return Fails("sds_getfuncode") ? RTNORM - 1 : fakeHost.functionCode;
}

sds_resbuf* sds_getargs(void) {
    return Fails("sds_getargs") ? nullptr : fakeHost.arguments;
}

int sds_retint(int value) {
    fakeHost.results.push_back(std::to_string(value));
    return StatusOf("sds_retint");
}

int sds_retnil(void) {
    fakeHost.results.push_back("nil");
    return StatusOf("sds_retnil");
}

int sds_retlist(const sds_resbuf* list) {
    fakeHost.results.push_back(ListText(list));
    return StatusOf("sds_retlist");
}

sds_resbuf* sds_buildlist(int type, ...) {
    if (Fails("sds_buildlist")) {
        return nullptr;
    }
    std::va_list values;
    va_start(values, type);
    sds_resbuf* first = nullptr;
    sds_resbuf** link = &first;
    for (; type != RTNONE; type = va_arg(values, int)) {
        sds_resbuf* const item = NewListItem();
        item->type = static_cast<short>(type);
        if (type == RTREAL) {
            item->value.real = va_arg(values, double);
        } else if (type == RTSTR) {
            item->value.string = _wcsdup(va_arg(values, const wchar_t*));
        } else {
            item->value.integer = static_cast<short>(va_arg(values, int));
        }
        *link = item;
        link = &item->next;
    }
    va_end(values);
    return first;
}

int sds_fail(const wchar_t* message) {
    fakeHost.failures.push_back(message);
    return StatusOf("sds_fail");
}

int sds_alert(const wchar_t* message) {
    fakeHost.alerts.push_back(message);
    return StatusOf("sds_alert");
}

HWND sds_getmainhwnd(void) {
    return Fails("sds_getmainhwnd") ? nullptr : fakeHost.mainWindow;
}

int sds_findfile(const wchar_t* name, wchar_t* result, size_t capacity) {
    fakeHost.searched.push_back(name);
    if (Fails("sds_findfile")) {
        return RTNORM - 1;
    }
    if (fakeHost.findFile) {
        return fakeHost.findFile(name, result, capacity);
    }
    for (const std::wstring& folder : fakeHost.searchFolders) {
        if (Found(folder + name, result, capacity) == RTNORM) {
            return RTNORM;
        }
    }
    return Found(name, result, capacity);
}

int sds_getvar(const wchar_t* name, sds_resbuf* result) {
    if (Fails("sds_getvar") || std::wcscmp(name, L"LUNITS") != 0) {
        return RTNORM - 1;
    }
    result->type = RTSHORT;
    result->value.integer = fakeHost.linearUnits;
    return RTNORM;
}

// "U2:900.0000": the text shows the units that were passed.
int sds_rtos(double value, int units, int precision, wchar_t* text) {
    if (Fails("sds_rtos")) {
        return RTNORM - 1;
    }
    const int digits = precision < 0 ? fakeHost.precision : precision;
    if (fakeHost.distanceText) {
        const std::optional<std::wstring> formatted = fakeHost.distanceText(value, units, digits);
        std::wcscpy(text, formatted.value_or(L"").c_str());
        return formatted ? RTNORM : RTNORM - 1;
    }
    std::swprintf(text, 256, L"U%d:%.*f", units, digits, value);
    return RTNORM;
}

int sds_distof(const wchar_t* text, int units, double* result) {
    const std::wstring prefix = L"U" + std::to_wstring(units) + L":";
    const std::wstring whole = text;
    if (fakeHost.distanceOf) {
        const std::optional<double> distance = fakeHost.distanceOf(whole);
        *result = distance.value_or(0.0);
        return distance ? RTNORM : RTNORM - 1;
    }
    const std::wstring number = whole.rfind(prefix, 0) == 0 ? whole.substr(prefix.size()) : whole;
    wchar_t* end = nullptr;
    const double value = std::wcstod(number.c_str(), &end);
    // The result of a text that cannot be read is spoilt, as a host may leave it.
    *result = value;
    return Fails("sds_distof") || number.empty() || *end != L'\0' ? RTNORM - 1 : RTNORM;
}

int sds_getpoint(const double* base, const wchar_t* prompt, double* point) {
    fakeHost.prompts.push_back(prompt);
    fakeHost.bases.push_back(PointText(base));
    if (fakeHost.duringPick) {
        fakeHost.duringPick();
    }
    for (int axis = 0; axis < 3; ++axis) {
        point[axis] = axis + 1;
    }
    return Fails("sds_getpoint") ? RTNORM - 1 : fakeHost.pointStatus;
}

int sds_getdist(const double* base, const wchar_t* prompt, double* distance) {
    fakeHost.prompts.push_back(prompt);
    fakeHost.bases.push_back(PointText(base));
    if (Fails("sds_getdist")) {
        return RTNORM - 1;
    }
    if (fakeHost.distanceStatus == RTNORM) {
        *distance = fakeHost.distance;
    }
    return fakeHost.distanceStatus;
}

// A volume without room: while an object lives, the files that the program writes take so many bytes more.
#pragma once

#include <cstddef>

class CFullVolume {
public:
    explicit CFullVolume(std::size_t room);
    ~CFullVolume();
    CFullVolume(const CFullVolume&) = delete;
    CFullVolume& operator=(const CFullVolume&) = delete;
};

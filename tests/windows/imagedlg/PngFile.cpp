#include "tests/windows/imagedlg/PngFile.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace {

constexpr unsigned char trueColor = 2;
constexpr unsigned char paletteColor = 3;

void PutBigEndian(std::string& bytes, std::uint32_t value, int size) {
    for (int byte = size - 1; byte >= 0; --byte) {
        bytes += static_cast<char>(value >> (8 * byte) & 0xFFU);
    }
}

std::uint32_t Crc(const std::string& bytes) {
    std::uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes) {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            crc = crc >> 1 ^ ((crc & 1U) != 0 ? 0xEDB88320U : 0U);
        }
    }
    return crc ^ 0xFFFFFFFFU;
}

std::string Chunk(const std::string& type, const std::string& data) {
    std::string bytes;
    PutBigEndian(bytes, static_cast<std::uint32_t>(data.size()), 4);
    bytes += type + data;
    PutBigEndian(bytes, Crc(type + data), 4);
    return bytes;
}

std::string Header(unsigned width, unsigned height, int depth, unsigned char colorType, bool interlaced) {
    std::string data;
    PutBigEndian(data, width, 4);
    PutBigEndian(data, height, 4);
    data += static_cast<char>(depth);
    data += static_cast<char>(colorType);
    data += std::string(2, '\0');  // the one compression, the one set of filters
    data += interlaced ? '\1' : '\0';
    return Chunk("IHDR", data);
}

std::string Color(unsigned rgb) {
    std::string bytes;
    PutBigEndian(bytes, rgb, 3);
    return bytes;
}

// A zlib stream that holds the data as it is.
std::string Stored(const std::string& data) {
    std::string stream = "\x78\x01";
    std::uint32_t low = 1;
    std::uint32_t high = 0;
    for (const char byte : data) {
        low = (low + static_cast<unsigned char>(byte)) % 65521;
        high = (high + low) % 65521;
    }
    size_t start = 0;
    do {
        const size_t size = std::min<size_t>(data.size() - start, 0xFFFF);
        stream += start + size == data.size() ? '\1' : '\0';
        for (const size_t length : {size, ~size}) {
            stream += static_cast<char>(length & 0xFF);
            stream += static_cast<char>(length >> 8 & 0xFF);
        }
        stream += data.substr(start, size);
        start += size;
    } while (start < data.size());
    PutBigEndian(stream, high << 16 | low, 4);
    return stream;
}

// A zlib stream of `count` zeros: one literal, then copies of the byte before, in the fixed code.
class CZeroStream {
public:
    explicit CZeroStream(std::uint32_t count) {
        m_stream = "\x78\x01";
        Put(0b1, 1);   // the last block
        Put(0b10, 2);  // of the fixed code; bits of a number go in from the lowest
        Code(0b00110000, 8);
        std::uint32_t left = count - 1;
        for (; left >= longestCopy; left -= longestCopy) {
            Code(0b11000101, 8);
            Code(0, 5);
        }
        for (; left > 0; --left) {
            Code(0b00110000, 8);
        }
        Code(0, 7);
        Put(0, (8 - m_bits) % 8);
        PutBigEndian(m_stream, count % 65521 << 16 | 1, 4);
    }

    const std::string& Bytes() const { return m_stream; }

private:
    static constexpr std::uint32_t longestCopy = 258;

    void Put(unsigned value, int bits) {
        for (int bit = 0; bit < bits; ++bit) {
            m_byte |= (value >> bit & 1U) << m_bits;
            if (++m_bits == 8) {
                m_stream += static_cast<char>(m_byte);
                m_byte = 0;
                m_bits = 0;
            }
        }
    }

    // Bits of a code go in from the highest.
    void Code(unsigned code, int bits) {
        for (int bit = bits - 1; bit >= 0; --bit) {
            Put(code >> bit & 1U, 1);
        }
    }

    std::string m_stream;
    unsigned m_byte = 0;
    int m_bits = 0;
};

std::string File(const std::string& header, const std::string& palette, const std::string& stream) {
    return "\x89PNG\r\n\x1a\n" + header + (palette.empty() ? "" : Chunk("PLTE", palette)) +
           Chunk("IDAT", stream) + Chunk("IEND", "");
}

// The steps of one pass over the picture.
struct Pass {
    int left, top, across, down;
};
constexpr Pass wholePicture = {0, 0, 1, 1};
constexpr std::array<Pass, 7> interlacing = {
    {{0, 0, 8, 8}, {4, 0, 8, 8}, {0, 4, 4, 8}, {2, 0, 4, 4}, {0, 2, 2, 4}, {1, 0, 2, 2}, {0, 1, 1, 2}}};

template <typename Sample>
void AddPass(std::string& data, const Pass& pass, int width, int height, Sample sample) {
    for (int y = pass.top; y < height && pass.left < width; y += pass.down) {
        data += '\0';  // no filter
        for (int x = pass.left; x < width; x += pass.across) {
            data += sample(static_cast<size_t>(y * width + x));
        }
    }
}

}  // namespace

std::string PngFile(int width, int height, const std::vector<unsigned>& pixels, EPngForm form) {
    std::string data;
    std::string palette;
    const auto sample = [&](size_t index) {
        if (form == EPngForm::Palette) {
            palette += Color(pixels[index]);
            return std::string(1, static_cast<char>(palette.size() / 3 - 1));
        }
        std::string bytes;
        for (const char byte : Color(pixels[index])) {
            bytes += std::string(form == EPngForm::Rgb16 ? 2 : 1, byte);
        }
        return bytes;
    };
    if (form == EPngForm::Interlaced) {
        for (const Pass& pass : interlacing) {
            AddPass(data, pass, width, height, sample);
        }
    } else {
        AddPass(data, wholePicture, width, height, sample);
    }
    return File(
        Header(static_cast<unsigned>(width), static_cast<unsigned>(height), form == EPngForm::Rgb16 ? 16 : 8,
               form == EPngForm::Palette ? paletteColor : trueColor, form == EPngForm::Interlaced),
        palette, Stored(data));
}

std::string HugePngFile(unsigned size, unsigned color) {
    const std::uint32_t rowSize = 1 + (size + 7) / 8;
    return File(Header(size, size, 1, paletteColor, false), Color(color) + Color(0),
                CZeroStream(rowSize * size).Bytes());
}

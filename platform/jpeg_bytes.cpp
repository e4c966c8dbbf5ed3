#include "platform/jpeg_bytes.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace {

constexpr std::size_t MarkStart = 0xFF;

enum JpegMark : std::size_t {
    Stuffing = 0x00,  // after MarkStart: a byte of data that looks like it
    FirstFrame = 0xC0,
    LastBaseline = 0xC1,
    Progressive = 0xC2,
    HuffmanCodes = 0xC4,
    Reserved = 0xC8,
    Conditioning = 0xCC,
    LastFrame = 0xCF,
    FirstRestart = 0xD0,
    LastRestart = 0xD7,
    StartOfImage = 0xD8,
    EndOfImage = 0xD9,
    StartOfScan = 0xDA,
    RestartInterval = 0xDD
};

bool IsRestart(std::size_t mark) {
    return mark >= FirstRestart && mark <= LastRestart;
}

bool IsFrame(std::size_t mark) {
    return mark >= FirstFrame && mark <= LastFrame && mark != HuffmanCodes && mark != Reserved &&
           mark != Conditioning;
}

// After MarkStart, of which there may be more.
std::size_t TakeMarkCode(ByteWalk& jpeg) {
    std::size_t mark = MarkStart;
    while (mark == MarkStart)
        mark = jpeg.Take();
    return mark;
}

std::size_t TakeMark(ByteWalk& jpeg) {
    if (const std::size_t code = jpeg.Take(); code != MarkStart)
        jpeg.Refuse("a mark of a JPEG", "the code " + std::to_string(code));
    return TakeMarkCode(jpeg);
}

// Codes in the order of their lengths, each length's counted up from the one before.
struct HuffmanTable {
    static constexpr std::size_t Longest = 16;

    std::array<int, Longest + 1> counts{};  // by length
    std::vector<std::size_t> symbols;
};

// The bits of a scan up to the next mark.
class ScanBits {
  public:
    explicit ScanBits(ByteWalk& walked) : jpeg(walked) {}

    std::size_t TakeSymbol(const HuffmanTable& table) {
        int code = 0, first = 0;
        std::size_t before = 0;
        for (std::size_t length = 1; length < table.counts.size(); ++length) {
            code = code << 1 | TakeBit();
            const int count = table.counts[length];
            if (code - first < count) return table.symbols[before + static_cast<std::size_t>(code - first)];
            before += static_cast<std::size_t>(count);
            first = (first + count) << 1;
        }
        jpeg.Refuse("a Huffman code", "another");
    }

    // A number of `size` bits, 0 to 15; those that begin with a zero are negative.
    int TakeNumber(std::size_t size) {
        int value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 1 | TakeBit();
        return size == 0 || value >> (size - 1) != 0 ? value : value - (1 << size) + 1;
    }

    void Restart() {
        left = 0;
        if (jpeg.Take() != MarkStart || !IsRestart(TakeMarkCode(jpeg)))
            jpeg.Refuse("a restart of the picture's data", "none");
    }

  private:
    int TakeBit() {
        if (left == 0) {
            byte = jpeg.Take();
            if (byte == MarkStart && TakeMarkCode(jpeg) != Stuffing)
                jpeg.Refuse("more of the picture's data", "a mark");
            left = 8;
        }
        --left;
        return static_cast<int>(byte >> left & 1);
    }

    ByteWalk& jpeg;
    std::size_t byte = 0;
    int left = 0;  // bits of the byte
};

struct Component {
    std::size_t id;
    std::size_t across, down;  // blocks in a unit of several components
    const HuffmanTable* brightness = nullptr;
    const HuffmanTable* detail = nullptr;
    int last = 0;  // brightness of the block before
};

class JpegWalk {
  public:
    explicit JpegWalk(ByteWalk walked) : jpeg(walked) {}

    void Run() {
        if (TakeMark(jpeg) != StartOfImage || jpeg.At() != 2)
            jpeg.Refuse("the start of a JPEG", "another mark");
        for (std::size_t mark = TakeMark(jpeg); mark != EndOfImage;) {
            ReadSegment(mark);
            mark = mark == StartOfScan ? PassScan() : TakeMark(jpeg);
        }
        if (!pictured) jpeg.Refuse("a picture in the JPEG", "none");
    }

  private:
    void ReadSegment(std::size_t mark) {
        if (IsFrame(mark) && mark > LastBaseline)
            jpeg.Refuse("a baseline JPEG", mark == Progressive ? "a progressive one" : "another kind");
        const std::size_t begin = jpeg.At();
        const std::size_t end = begin + std::max<std::size_t>(jpeg.TakeBigEndian16(), 2);
        if (IsFrame(mark)) ReadFrame();
        if (mark == HuffmanCodes) ReadTables(end);
        if (mark == RestartInterval) interval = jpeg.TakeBigEndian16();
        if (mark == StartOfScan) ReadScan();
        jpeg.GoTo(end);
    }

    void ReadFrame() {
        jpeg.Skip(1);  // bits of a colour
        height = jpeg.TakeBigEndian16();
        width = jpeg.TakeBigEndian16();
        components.resize(jpeg.Take());
        for (Component& component : components) {
            component.id = jpeg.Take();
            const std::size_t blocks = jpeg.Take();
            component.across = blocks >> 4;
            component.down = blocks & 15;
            if (component.across == 0 || component.across > 4 || component.down == 0 || component.down > 4)
                jpeg.Refuse("1 to 4 blocks either way", "others");
            jpeg.Skip(1);
        }
    }

    void ReadTables(std::size_t end) {
        constexpr std::size_t Most = 255;  // the decoder has room for one more, a mark of its own
        while (jpeg.At() < end) {
            HuffmanTable& table = TableOf(jpeg.Take());
            std::size_t codes = 0;
            for (std::size_t length = 1; length < table.counts.size(); ++length) {
                table.counts[length] = static_cast<int>(jpeg.Take());
                codes += static_cast<std::size_t>(table.counts[length]);
            }
            if (codes > Most)
                jpeg.Refuse("up to " + std::to_string(Most) + " Huffman codes", std::to_string(codes));
            int room = 1;
            for (std::size_t length = 1; length < table.counts.size(); ++length)
                room = std::max(room * 2 - table.counts[length], -1);
            if (room < 0) jpeg.Refuse("Huffman codes of which none begins another", "others");
            table.symbols.resize(codes);
            for (std::size_t& symbol : table.symbols)
                symbol = jpeg.Take();
        }
    }

    // Bit 4: of the details. Bits 0 to 3: which one.
    HuffmanTable& TableOf(std::size_t place) {
        if ((place & ~std::size_t{0x13}) != 0) jpeg.Refuse("a place of a Huffman table", "another");
        return tables[place >> 4][place & 3];
    }

    void ReadScan() {
        scanned.resize(jpeg.Take());
        for (Component*& component : scanned) {
            const std::size_t id = jpeg.Take(), places = jpeg.Take();
            const auto found = std::find_if(components.begin(), components.end(),
                                            [id](const Component& known) { return known.id == id; });
            if (found == components.end()) jpeg.Refuse("a component of the JPEG", "another");
            component = &*found;
            component->brightness = &TableOf(places >> 4);
            component->detail = &TableOf((places & 15) | 0x10);
            if (component->brightness->symbols.empty() || component->detail->symbols.empty())
                jpeg.Refuse("a Huffman table", "none");
        }
        if (scanned.empty()) jpeg.Refuse("a component of the JPEG", "none");
    }

    // Goes through the data, and past them. Gives the mark that comes then.
    std::size_t PassScan() {
        ScanBits bits(jpeg);
        const std::size_t units = Units();
        for (std::size_t unit = 0; unit < units; ++unit) {
            const bool restarts = interval > 0 && unit % interval == 0;
            if (restarts && unit > 0) bits.Restart();
            for (Component* component : scanned) {
                if (restarts || unit == 0) component->last = 0;
                const std::size_t blocks = scanned.size() > 1 ? component->across * component->down : 1;
                for (std::size_t block = 0; block < blocks; ++block)
                    PassBlock(bits, *component);
            }
        }
        pictured = true;
        for (;;) {
            if (jpeg.Take() != MarkStart) continue;
            const std::size_t mark = TakeMarkCode(jpeg);
            if (mark != Stuffing && !IsRestart(mark)) return mark;
        }
    }

    // Groups of blocks, or blocks where the scan has one component alone.
    std::size_t Units() const {
        constexpr std::size_t Side = 8;
        const auto sidesIn = [](std::size_t pixels, std::size_t side) { return (pixels + side - 1) / side; };
        std::size_t across = 1, down = 1;
        for (const Component& component : components) {
            across = std::max(across, component.across);
            down = std::max(down, component.down);
        }
        if (scanned.size() > 1) return sidesIn(width, Side * across) * sidesIn(height, Side * down);
        const Component& only = *scanned.front();
        return sidesIn(sidesIn(width * only.across, across), Side) *
               sidesIn(sidesIn(height * only.down, down), Side);
    }

    void PassBlock(ScanBits& bits, Component& component) {
        constexpr std::size_t Values = 64, FarRun = 15, LongestNumber = 15;
        constexpr int Brightest = 32767;
        const std::size_t size = bits.TakeSymbol(*component.brightness);
        if (size > LongestNumber) jpeg.Refuse("a number of up to 15 bits", std::to_string(size));
        component.last += bits.TakeNumber(size);
        if (std::abs(component.last) > Brightest)
            jpeg.Refuse("a brightness of 16 bits", std::to_string(component.last));
        for (std::size_t value = 1; value < Values;) {
            const std::size_t symbol = bits.TakeSymbol(*component.detail);
            const std::size_t run = symbol >> 4, length = symbol & 15;
            if (length == 0 && run != FarRun) break;
            bits.TakeNumber(length);
            value += run + 1;
        }
    }

    ByteWalk jpeg;
    std::size_t width = 0, height = 0;
    std::vector<Component> components;
    std::vector<Component*> scanned;
    std::array<std::array<HuffmanTable, 4>, 2> tables;
    std::size_t interval = 0;  // units between restarts; 0 for none
    bool pictured = false;
};

}  // namespace

void CheckJpeg(ByteWalk jpeg) {
    JpegWalk(jpeg).Run();
}

#pragma once

#include "model/core/flags.h"
#include "model/core/limits.h"
#include "model/timing/resolution.h"

namespace VNT {

// How a timing comes about: entered by hand, looked up, or computed. In the order of the form's box.
struct DetailedResolutionTimingEnum {
    enum Enum : int {
        Manual,
        AutomaticPc,
        AutomaticHdtv,
        AutomaticCrt,
        NativePc,
        NativeHdtv,
        Exact,
        ExactReduced,
        ExactCrt,
        Ovt,
        Cvt,
        CvtRb,
        CvtRb2,
        Gtf,
        Qft,
        None = 15,
    };
    static constexpr int Count = Qft + 1;
    static constexpr ValueText<Enum> Texts[] = {
        {Manual, "Manual"},
        {AutomaticPc, "Automatic PC"},
        {AutomaticHdtv, "Automatic HDTV"},
        {AutomaticCrt, "Automatic CRT"},
        {NativePc, "Native PC"},
        {NativeHdtv, "Native HDTV"},
        {Exact, "Exact"},
        {ExactReduced, "Exact reduced"},
        {ExactCrt, "Exact CRT"},
        {Ovt, "OVT standard"},
        {Cvt, "CVT standard"},
        {CvtRb, "CVT-RB standard"},
        {CvtRb2, "CVT-RB2 standard"},
        {Gtf, "GTF standard"},
        {Qft, "QFT calculator"},
    };
};

// Which count of each axis is entered; the other two follow.
struct DetailedResolutionParameterTypeEnum {
    enum Enum : int { BackPorch, Blanking, Total, None };
    static constexpr int Count = None;
    static constexpr ValueText<Enum> Texts[] = {{BackPorch, "Back porch:"}, {Blanking, "Blanking:"}, {Total, "Total:"}};
};

// Which frequency is entered; the other two follow.
struct DetailedResolutionFrequencyTypeEnum {
    enum Enum : int { RefreshRate, ScanRate, PixelClock, None };
    static constexpr int Count = None;
    static constexpr ValueText<Enum> Texts[] = {
        {RefreshRate, "Refresh rate:"}, {ScanRate, "Scan rate:"}, {PixelClock, "Pixel clock:"}};
};

// Which frequency fixes the speed of the frame in the QFT calculator.
struct DetailedResolutionQftSourceEnum {
    enum Enum : int { ScanRate, PixelClock, None };
    static constexpr int Count = None;
};

// The one timing record of all detailed kinds: what was entered and what follows from it. Lines count frames, also
// where the scan is interlaced. The initialisers are the VGA mode: what a new resolution starts from.
struct DetailedResolutionFields {
    DetailedResolutionTimingEnum::Enum timing = DetailedResolutionTimingEnum::Manual;
    DetailedResolutionParameterTypeEnum::Enum parameterType = DetailedResolutionParameterTypeEnum::BackPorch;
    DetailedResolutionFrequencyTypeEnum::Enum frequencyType = DetailedResolutionFrequencyTypeEnum::RefreshRate;
    DetailedResolutionQftSourceEnum::Enum qftSource = DetailedResolutionQftSourceEnum::PixelClock;
    int hactive = 640, hfront = 16, hsync = 96, hback = 48, hblank = 160, htotal = 800;  // pixels
    int vactive = 480, vfront = 10, vsync = 2, vback = 33, vblank = 45, vtotal = 525;    // lines
    bool hpolarity = false, vpolarity = false;                                           // true: positive
    bool interlaced = false;
    Decimal vrate{60};           // Hz as entered; the field rate where interlaced
    Decimal hrate{315, 1};       // kHz as entered
    Decimal pixelclock{252, 1};  // MHz as entered
    Decimal actualvrate{60};     // what follows from the stored clock
    Decimal actualhrate{315, 1};
    Decimal actualpixelclock{252, 1};  // the clock at the encoding's precision: what is stored
    bool operator==(const DetailedResolutionFields&) const = default;
};

struct TimingAxisLimits {
    ValueLimits active, front, sync, back, blank, total;
};

// The limits of an encoding for a record as it is now: those of one field hang on the others.
struct DetailedResolutionLimits {
    TimingAxisLimits horizontal, vertical;
    DecimalLimits pixelclock;
    int pixelClockDecimals = 2;
};

// The text format of a detailed kind.
struct DetailedResolutionTextFormat : ResolutionTextFormat {
    std::u32string_view modeline =
        U"Modeline \"{hactive}x{vactive}{i}_{vrate}\" {pixelclock} {hactive} {hsyncstart} {hsyncend} {htotal} "
        U"{vactive} {vsyncstart} {vsyncend} {vtotal} {modelineflags}{scantext}";
    DecimalFormat refreshRateNumber{3, 21, false};
    DecimalFormat scanRateNumber{3, 21, false};
    DecimalFormat pixelClockNumber;
    std::u32string_view sync = U"{hpolarity}/{vpolarity}";
    std::u32string_view modelineFlags = U"{hpolarity}HSync {vpolarity}VSync";
    std::u32string_view negative = U"-", positive = U"+";
    std::u32string_view progressiveScan, interlacedScan = U" Interlace";

    constexpr DetailedResolutionTextFormat(std::u32string_view main, std::u32string_view kind, int clockDecimals)
        : pixelClockNumber{clockDecimals, 21, false} {
        format = main;
        description = U"{resolutiontext}{aspectratiotext}{refreshratetext} ({pixelclock} MHz) [{synctext}]";
        type = kind;
    }
};

// Every placeholder that follows from the record, with no aspect ratio; a kind sets its own behind this.
void FillTimingTexts(TextTable& table, const DetailedResolutionFields& fields,
                     const DetailedResolutionTextFormat& format);

// A complete timing, whatever its bytes are.
class AnyDetailedResolution : public AnyResolution {
public:
    virtual const DetailedResolutionFields& GetFields() const = 0;
    virtual DetailedResolutionFields& GetAllFields() = 0;
};

// The holder of the detailed kinds.
class DetailedResolution : public TContainer<AnyResolution, AnyDetailedResolution> {
public:
    using TContainer::TContainer;

    int GetType() const override;
    void GetText(String& out, const String& format) const override;
    void GetText(String& out) const override;
    void GetSummary(ResolutionSummary& out) const override;
    bool IsValid() const override;
    bool IsValidAll() const override;
    // From a holder without a detailed resolution one shared record that says nothing.
    const DetailedResolutionFields& GetFields() const override;
    DetailedResolutionFields& GetAllFields() override;
};

// What "Copy" of a resolution form has put aside, for as long as the program runs.
DetailedResolution& DetailedResolutionClipboard();

}  // namespace VNT

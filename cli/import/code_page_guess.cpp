#include "import/capture_encoding.h"

#include "output/text_forms.h"
#include "simulation/narrow_encoding.h"

#include <algorithm>
#include <limits>

namespace calvix::host
{

namespace
{

/// How a code page's characters look in a capture. The more likely of two that fit equally well comes first.
struct CodePageLetters
{
    std::uint32_t codePage;
    bool doubleByte;
    std::u32string_view usual; ///< small letters and signs that are common there, but for Hangul and kana
};

constexpr std::u32string_view kWesternLetters = U"äöüßéèêëàâçîïôùûñáíóúãõìòåæøœ¿¡’´°\u00A0";
constexpr std::u32string_view kCentralLetters = U"ąćęłńóśźżáčďéěíňřšťúůýžőűôäöüßăâîşţ’´°\u00A0";
constexpr std::u32string_view kCyrillicLetters = U"абвгдежзийклмнопрстуфхцчшщъыьэюяё\u00A0«»№";
constexpr std::u32string_view kJapaneseLetters =
    U"無線種類暗号化認証接続状態物理的名前説明自動速度受信送信数基本他現在表示使用可能不可製造元帯域共有個人用企業対応"
    U"設定済許可最大中止機能負荷情報種別・ー:";
constexpr std::u32string_view kSimplifiedLetters =
    U"网络类型认证加密信号无线电频道波段速率接口名称状态物理地址描述配置文件自动连接个人企业开放式结构基础共享身份验证"
    U"当前有个可见不用主要断已系统上"
    U"基本其他传输收打关闭硬软件承载的到支持允许策略映射模密码信道点:（）";
constexpr std::u32string_view kTraditionalLetters =
    U"網路類型驗證加密訊號無線電波頻道帶通速率介面名稱狀態實體位址描述設定檔自動連線個人企業開放式基礎結構共用目前有個"
    U"可見不已中斷系統上"
    U"基本其他傳輸接收開啟關閉硬軟體裝置的到支援允許原則對應模密碼主要顯示:（）";

constexpr CodePageLetters kCodePageLetters[] = {
    {850, false, kWesternLetters},    {1252, false, kWesternLetters},  {852, false, kCentralLetters},
    {1250, false, kCentralLetters},   {866, false, kCyrillicLetters},  {1251, false, kCyrillicLetters},
    {932, true, kJapaneseLetters},    {936, true, kSimplifiedLetters}, {949, true, U""},
    {950, true, kTraditionalLetters}, {437, false, kWesternLetters},
};

enum class Script
{
    other,
    latin,
    cyrillic,
    kana,
    hangul,
    ideographs
};

Script ScriptOf(char32_t letter)
{
    const auto within = [letter](char32_t first, char32_t last) { return letter >= first && letter <= last; };
    if (within(U'A', U'Z') || within(U'a', U'z') || (within(0xC0, 0x17F) && letter != 0xD7 && letter != 0xF7))
        return Script::latin;
    if (within(0x400, 0x45F))
        return Script::cyrillic;
    if (within(0x3041, 0x30FF))
        return Script::kana;
    if (within(0xAC00, 0xD7A3))
        return Script::hangul;
    return within(0x4E00, 0x9FFF) ? Script::ideographs : Script::other;
}

/// How well a character fits after the one before it, for each of its bytes.
int Plausibility(const CodePageLetters& page, char32_t before, char32_t letter)
{
    const auto isCapital = [](char32_t each) { return SmallLetter(each) != each; };
    const Script script = ScriptOf(letter);
    const Script scriptBefore = ScriptOf(before);
    const bool isAlphabet = script == Script::latin || script == Script::cyrillic;
    const bool mixes = isAlphabet ? scriptBefore != Script::other && scriptBefore != script
                                  : script != Script::other && before >= U'a' && before <= U'z';
    const bool isCapitalInside = isAlphabet && isCapital(letter) && scriptBefore == script && !isCapital(before);
    if (mixes || isCapitalInside)
        return -3;
    const bool isOwnScript =
        (page.codePage == 932 && script == Script::kana) || (page.codePage == 949 && script == Script::hangul);
    return isOwnScript || page.usual.find(SmallLetter(letter)) != std::u32string_view::npos ? 2 : -1;
}

int Score(const CodePageLetters& page, const std::vector<std::string_view>& lines)
{
    constexpr int kIllFormed = -20;
    constexpr char32_t kFirstHalfWidth = 0xFF61;
    int score = 0;
    for (const std::string_view line : lines)
    {
        bool illFormed = false;
        char32_t before = U' ';
        for (const char32_t letter : CodePoints(Narrow(simulation::DecodeNarrow(page.codePage, line, illFormed))))
        {
            const int bytes = page.doubleByte && letter < kFirstHalfWidth ? 2 : 1;
            score += letter >= 0x80 ? Plausibility(page, before, letter) * bytes : 0;
            before = letter;
        }
        score += illFormed ? kIllFormed : 0;
    }
    return score;
}

/// The lines that say something about the code page.
std::vector<std::string_view> UsefulLines(std::string_view bytes)
{
    std::vector<std::string_view> lines;
    std::vector<std::string_view> ssids;
    for (const std::string_view line : LinesOf(bytes))
        if (std::any_of(line.begin(), line.end(),
                        [](char letter) { return static_cast<unsigned char>(letter) > 0x7F; }))
            (Trim(line).starts_with("SSID") ? ssids : lines).push_back(line);
    return lines.empty() ? ssids : lines;
}

} // namespace

NarrowText DecodeNarrowText(std::uint32_t codePage, std::string_view bytes)
{
    NarrowText result;
    std::size_t number = 0;
    for (const std::string_view line : LinesOf(bytes))
    {
        bool illFormed = false;
        ++number;
        if (!line.empty())
            result.text += Narrow(simulation::DecodeNarrow(codePage, line, illFormed));
        result.text += '\n';
        if (illFormed && result.illFormedLine == 0)
            result.illFormedLine = number;
    }
    return result;
}

std::uint32_t LikelyCodePage(std::string_view bytes)
{
    const std::vector<std::string_view> lines = UsefulLines(bytes);
    std::uint32_t likely = 0;
    int best = std::numeric_limits<int>::min();
    for (const CodePageLetters& page : kCodePageLetters)
        if (const int score = simulation::HasNarrowEncoding(page.codePage) ? Score(page, lines) : best; score > best)
        {
            best = score;
            likely = page.codePage;
        }
    return likely;
}

} // namespace calvix::host

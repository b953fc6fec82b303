#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace calvix::host
{

/// How a code page's characters look in a capture. The more likely of two that fit equally well stands first.
struct CodePageLetters
{
    std::uint32_t codePage;
    bool doubleByte;
    std::u32string_view
        usual; ///< small letters and signs that are common there; Hangul and kana are told by their blocks
};

inline constexpr std::u32string_view kWesternLetters = U"äöüßéèêëàâçîïôùûñáíóúãõìòåæøœ¿¡’´°\u00A0";
inline constexpr std::u32string_view kCentralLetters = U"ąćęłńóśźżáčďéěíňřšťúůýžőűôäöüßăâîşţ’´°\u00A0";
inline constexpr std::u32string_view kCyrillicLetters = U"абвгдежзийклмнопрстуфхцчшщъыьэюяё\u00A0«»№";
inline constexpr std::u32string_view kJapaneseLetters =
    U"無線種類暗号化認証接続状態物理的名前説明自動速度受信送信数基本他現在表示使用可能不可製造元帯域共有個人用企業対応"
    U"設定済許可最大中止機能負荷情報種別・ー:";
inline constexpr std::u32string_view kSimplifiedLetters =
    U"网络类型认证加密信号无线电频道波段速率接口名称状态物理地址描述配置文件自动连接个人企业开放式结构基础共享身份验证"
    U"当前有个可见不用主要断已系统上"
    U"基本其他传输收打关闭硬软件承载的到支持允许策略映射模密码信道点:（）";
inline constexpr std::u32string_view kTraditionalLetters =
    U"網路類型驗證加密訊號無線電波頻道帶通速率介面名稱狀態實體位址描述設定檔自動連線個人企業開放式基礎結構共用目前有個"
    U"可見不已中斷系統上"
    U"基本其他傳輸接收開啟關閉硬軟體裝置的到支援允許原則對應模密碼主要顯示:（）";

inline constexpr std::array<CodePageLetters, 11> kCodePageLetters{{
    {850, false, kWesternLetters},
    {1252, false, kWesternLetters},
    {852, false, kCentralLetters},
    {1250, false, kCentralLetters},
    {866, false, kCyrillicLetters},
    {1251, false, kCyrillicLetters},
    {932, true, kJapaneseLetters},
    {936, true, kSimplifiedLetters},
    {949, true, U""},
    {950, true, kTraditionalLetters},
    {437, false, kWesternLetters},
}};

} // namespace calvix::host

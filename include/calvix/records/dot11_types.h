// The 802.11 vocabulary of the WLAN API for builds without the Windows SDK: networks, addresses,
// algorithms. Enumerations have their underlying type spelled out, because the platform may hand out
// values that this list does not know yet, and those must stay valid values.
#pragma once

#include <calvix/records/windows_types.h>

inline constexpr ULONG DOT11_SSID_MAX_LENGTH = 32;
inline constexpr ULONG DOT11_RATE_SET_MAX_LENGTH = 126;

using DOT11_MAC_ADDRESS = UCHAR[6];
using PDOT11_MAC_ADDRESS = DOT11_MAC_ADDRESS*;

struct DOT11_SSID
{
    ULONG uSSIDLength;
    UCHAR ucSSID[DOT11_SSID_MAX_LENGTH];
};
using PDOT11_SSID = DOT11_SSID*;

inline constexpr UCHAR NDIS_OBJECT_TYPE_DEFAULT = 0x80;

struct NDIS_OBJECT_HEADER
{
    UCHAR Type;
    UCHAR Revision;
    USHORT Size;
};
using PNDIS_OBJECT_HEADER = NDIS_OBJECT_HEADER*;

inline constexpr UCHAR DOT11_BSSID_LIST_REVISION_1 = 1;

struct DOT11_BSSID_LIST
{
    NDIS_OBJECT_HEADER Header;
    ULONG uNumOfEntries;
    ULONG uTotalNumOfEntries;
    DOT11_MAC_ADDRESS BSSIDs[1];
};
using PDOT11_BSSID_LIST = DOT11_BSSID_LIST*;

enum DOT11_BSS_TYPE : unsigned int
{
    dot11_BSS_type_infrastructure = 1,
    dot11_BSS_type_independent = 2,
    dot11_BSS_type_any = 3
};
using PDOT11_BSS_TYPE = DOT11_BSS_TYPE*;

enum DOT11_PHY_TYPE : unsigned int
{
    dot11_phy_type_unknown = 0,
    dot11_phy_type_any = dot11_phy_type_unknown,
    dot11_phy_type_fhss = 1,
    dot11_phy_type_dsss = 2,
    dot11_phy_type_irbaseband = 3,
    dot11_phy_type_ofdm = 4,
    dot11_phy_type_hrdsss = 5,
    dot11_phy_type_erp = 6,
    dot11_phy_type_ht = 7,
    dot11_phy_type_vht = 8,
    dot11_phy_type_dmg = 9,
    dot11_phy_type_he = 10,
    dot11_phy_type_eht = 11,
    dot11_phy_type_IHV_start = 0x80000000,
    dot11_phy_type_IHV_end = 0xffffffff
};
using PDOT11_PHY_TYPE = DOT11_PHY_TYPE*;

enum DOT11_AUTH_ALGORITHM : unsigned int
{
    DOT11_AUTH_ALGO_80211_OPEN = 1,
    DOT11_AUTH_ALGO_80211_SHARED_KEY = 2,
    DOT11_AUTH_ALGO_WPA = 3,
    DOT11_AUTH_ALGO_WPA_PSK = 4,
    DOT11_AUTH_ALGO_WPA_NONE = 5,
    DOT11_AUTH_ALGO_RSNA = 6,
    DOT11_AUTH_ALGO_RSNA_PSK = 7,
    DOT11_AUTH_ALGO_WPA3 = 8,
    DOT11_AUTH_ALGO_WPA3_ENT_192 = DOT11_AUTH_ALGO_WPA3,
    DOT11_AUTH_ALGO_WPA3_SAE = 9,
    DOT11_AUTH_ALGO_OWE = 10,
    DOT11_AUTH_ALGO_WPA3_ENT = 11,
    DOT11_AUTH_ALGO_IHV_START = 0x80000000,
    DOT11_AUTH_ALGO_IHV_END = 0xffffffff
};
using PDOT11_AUTH_ALGORITHM = DOT11_AUTH_ALGORITHM*;

enum DOT11_CIPHER_ALGORITHM : unsigned int
{
    DOT11_CIPHER_ALGO_NONE = 0x00,
    DOT11_CIPHER_ALGO_WEP40 = 0x01,
    DOT11_CIPHER_ALGO_TKIP = 0x02,
    DOT11_CIPHER_ALGO_CCMP = 0x04,
    DOT11_CIPHER_ALGO_WEP104 = 0x05,
    DOT11_CIPHER_ALGO_BIP = 0x06,
    DOT11_CIPHER_ALGO_GCMP = 0x08,
    DOT11_CIPHER_ALGO_GCMP_256 = 0x09,
    DOT11_CIPHER_ALGO_CCMP_256 = 0x0a,
    DOT11_CIPHER_ALGO_BIP_GMAC_128 = 0x0b,
    DOT11_CIPHER_ALGO_BIP_GMAC_256 = 0x0c,
    DOT11_CIPHER_ALGO_BIP_CMAC_256 = 0x0d,
    DOT11_CIPHER_ALGO_WPA_USE_GROUP = 0x100,
    DOT11_CIPHER_ALGO_RSN_USE_GROUP = 0x100,
    DOT11_CIPHER_ALGO_WEP = 0x101,
    DOT11_CIPHER_ALGO_IHV_START = 0x80000000,
    DOT11_CIPHER_ALGO_IHV_END = 0xffffffff
};
using PDOT11_CIPHER_ALGORITHM = DOT11_CIPHER_ALGORITHM*;

struct DOT11_AUTH_CIPHER_PAIR
{
    DOT11_AUTH_ALGORITHM AuthAlgoId;
    DOT11_CIPHER_ALGORITHM CipherAlgoId;
};
using PDOT11_AUTH_CIPHER_PAIR = DOT11_AUTH_CIPHER_PAIR*;

using DOT11_COUNTRY_OR_REGION_STRING = UCHAR[3];
using PDOT11_COUNTRY_OR_REGION_STRING = DOT11_COUNTRY_OR_REGION_STRING*;

enum DOT11_RADIO_STATE : unsigned int
{
    dot11_radio_state_unknown = 0,
    dot11_radio_state_on = 1,
    dot11_radio_state_off = 2
};
using PDOT11_RADIO_STATE = DOT11_RADIO_STATE*;

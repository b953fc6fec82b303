#include "import/capture_words.h"

#include "import/letter_case.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// Where a word was seen.
enum class WordSource
{
    capture,   ///< what a computer of somebody else's printed
    unverified ///< what the language has for it: nobody has shown a capture yet
};

struct CaptureWord
{
    std::string_view language;
    WordKind kind;
    std::string_view meaning;
    std::string_view words; ///< separated by bars, UTF-8
    WordSource source;
};

// clang-format off
constexpr CaptureWord kCaptureWords[] = {
    {"English", WordKind::networkType, "infrastructure", "Infrastructure", WordSource::capture},
    {"English", WordKind::networkType, "independent", "Adhoc|Ad hoc|Ad-hoc", WordSource::unverified},
    {"English", WordKind::authentication, "open", "Open", WordSource::capture},
    {"English", WordKind::authentication, "shared", "Shared", WordSource::unverified},
    {"English", WordKind::authentication, "OWE", "OWE|Enhanced Open", WordSource::unverified},
    {"English", WordKind::authentication, "personal", "Personal", WordSource::capture},
    {"English", WordKind::authentication, "personal", "PSK", WordSource::unverified},
    {"English", WordKind::authentication, "enterprise", "Enterprise", WordSource::unverified},
    {"English", WordKind::encryption, "none", "None", WordSource::capture},
    {"English", WordKind::connectionMode, "auto", "Auto Connect", WordSource::capture},
    {"English", WordKind::connectionMode, "manual", "Profile", WordSource::capture},
    {"English", WordKind::connectionMode, "manual", "Manual connect", WordSource::unverified},
    {"English", WordKind::radioSwitch, "on", "On", WordSource::capture},
    {"English", WordKind::radioSwitch, "off", "Off", WordSource::unverified},
    {"German", WordKind::networkType, "infrastructure", "Infrastruktur", WordSource::capture},
    {"German", WordKind::networkType, "independent", "Ad-hoc-Netz|Ad-Hoc-Netzwerk", WordSource::unverified},
    {"German", WordKind::authentication, "open", "Offen", WordSource::unverified},
    {"German", WordKind::authentication, "shared", "Gemeinsam|Gemeinsam verwendet|Freigegeben", WordSource::unverified},
    {"German", WordKind::authentication, "OWE", "Erweitert offen", WordSource::unverified},
    {"German", WordKind::authentication, "personal", "Persönlich", WordSource::unverified},
    {"German", WordKind::authentication, "enterprise", "Unternehmen", WordSource::unverified},
    {"German", WordKind::encryption, "none", "Keine|Kein|Ohne", WordSource::unverified},
    {"German", WordKind::connectionMode, "auto", "Automatisch verbinden|Automatische Verbindung", WordSource::unverified},
    {"German", WordKind::connectionMode, "manual", "Profil|Manuell verbinden", WordSource::unverified},
    {"German", WordKind::radioSwitch, "on", "Ein|Eingeschaltet|An", WordSource::unverified},
    {"German", WordKind::radioSwitch, "off", "Aus|Ausgeschaltet", WordSource::unverified},
    {"French", WordKind::networkType, "independent", "Réseau ad hoc", WordSource::unverified},
    {"French", WordKind::authentication, "open", "Ouvert|Ouverte", WordSource::unverified},
    {"French", WordKind::authentication, "shared", "Partagé|Partagée", WordSource::unverified},
    {"French", WordKind::authentication, "OWE", "Ouvert amélioré", WordSource::unverified},
    {"French", WordKind::authentication, "personal", "Personnel", WordSource::unverified},
    {"French", WordKind::authentication, "enterprise", "Entreprise", WordSource::unverified},
    {"French", WordKind::encryption, "none", "Aucun|Aucune", WordSource::unverified},
    {"French", WordKind::connectionMode, "auto", "Connexion automatique", WordSource::unverified},
    {"French", WordKind::radioSwitch, "on", "Activé|Activée", WordSource::unverified},
    {"French", WordKind::radioSwitch, "off", "Désactivé|Désactivée", WordSource::unverified},
    {"Italian", WordKind::networkType, "infrastructure", "Infrastruttura", WordSource::unverified},
    {"Italian", WordKind::authentication, "open", "Aperta|Aperto", WordSource::unverified},
    {"Italian", WordKind::authentication, "shared", "Condivisa|Condiviso", WordSource::unverified},
    {"Italian", WordKind::authentication, "personal", "Personale", WordSource::unverified},
    {"Italian", WordKind::authentication, "enterprise", "Aziendale|Azienda", WordSource::unverified},
    {"Italian", WordKind::encryption, "none", "Nessuna|Nessuno", WordSource::unverified},
    {"Italian", WordKind::connectionMode, "auto", "Connessione automatica", WordSource::unverified},
    {"Italian", WordKind::connectionMode, "manual", "Profilo", WordSource::unverified},
    {"Italian", WordKind::radioSwitch, "on", "Attivo|Attiva|Attivato|Attivata", WordSource::unverified},
    {"Italian", WordKind::radioSwitch, "off", "Disattivo|Disattiva|Disattivato|Disattivata", WordSource::unverified},
    {"Spanish", WordKind::networkType, "infrastructure", "Infraestructura", WordSource::unverified},
    {"Spanish", WordKind::networkType, "independent", "Red ad hoc", WordSource::unverified},
    {"Spanish", WordKind::authentication, "open", "Abierta|Abierto|Sistema abierto", WordSource::unverified},
    {"Spanish", WordKind::authentication, "shared", "Compartida|Compartido", WordSource::unverified},
    {"Spanish", WordKind::authentication, "enterprise", "Empresa|Empresarial", WordSource::unverified},
    {"Spanish", WordKind::encryption, "none", "Ninguna|Ninguno", WordSource::unverified},
    {"Spanish", WordKind::connectionMode, "auto", "Conexión automática", WordSource::unverified},
    {"Spanish", WordKind::connectionMode, "manual", "Perfil", WordSource::unverified},
    {"Spanish", WordKind::radioSwitch, "on", "Activado|Activada", WordSource::unverified},
    {"Spanish", WordKind::radioSwitch, "off", "Desactivado|Desactivada", WordSource::unverified},
    {"Portuguese", WordKind::networkType, "infrastructure", "Infraestrutura", WordSource::unverified},
    {"Portuguese", WordKind::networkType, "independent", "Rede ad hoc", WordSource::unverified},
    {"Portuguese", WordKind::authentication, "open", "Aberta|Aberto", WordSource::unverified},
    {"Portuguese", WordKind::authentication, "shared", "Compartilhada|Compartilhado|Partilhada", WordSource::unverified},
    {"Portuguese", WordKind::authentication, "personal", "Pessoal", WordSource::unverified},
    {"Portuguese", WordKind::authentication, "enterprise", "Corporativo", WordSource::unverified},
    {"Portuguese", WordKind::encryption, "none", "Nenhuma|Nenhum", WordSource::unverified},
    {"Portuguese", WordKind::connectionMode, "auto", "Conexão Automática|Ligação automática", WordSource::unverified},
    {"Portuguese", WordKind::radioSwitch, "on", "Ativado|Ativada|Ligado", WordSource::unverified},
    {"Portuguese", WordKind::radioSwitch, "off", "Desativado|Desativada|Desligado", WordSource::unverified},
    {"Polish", WordKind::networkType, "infrastructure", "Infrastruktura", WordSource::unverified},
    {"Polish", WordKind::authentication, "open", "Otwarte|Otwarty|Otwarta", WordSource::unverified},
    {"Polish", WordKind::authentication, "shared", "Współużytkowane|Współdzielone|Udostępnione", WordSource::unverified},
    {"Polish", WordKind::authentication, "personal", "Osobiste|Osobisty|Osobista", WordSource::unverified},
    {"Polish", WordKind::authentication, "enterprise", "Przedsiębiorstwo|Firmowe|Korporacyjna", WordSource::unverified},
    {"Polish", WordKind::encryption, "none", "Brak|Żadne", WordSource::unverified},
    {"Polish", WordKind::connectionMode, "auto", "Połącz automatycznie|Automatyczne łączenie|Łącz automatycznie", WordSource::unverified},
    {"Polish", WordKind::radioSwitch, "on", "Włączone|Włączony|Wł.|Wł|Włącz", WordSource::unverified},
    {"Polish", WordKind::radioSwitch, "off", "Wyłączone|Wyłączony|Wył.|Wył|Wyłącz", WordSource::unverified},
    {"Russian", WordKind::networkType, "infrastructure", "Инфраструктура", WordSource::unverified},
    {"Russian", WordKind::networkType, "independent", "Одноранговая|Одноранговая сеть|Компьютер-компьютер", WordSource::unverified},
    {"Russian", WordKind::authentication, "open", "Открытая|Открытый|Открыта", WordSource::unverified},
    {"Russian", WordKind::authentication, "shared", "Общая|Совместная", WordSource::unverified},
    {"Russian", WordKind::authentication, "personal", "Личное|Личная|Персональная|Персональный|Персонал", WordSource::unverified},
    {"Russian", WordKind::authentication, "enterprise", "Предприятие|Корпоративная|Корпоративный", WordSource::unverified},
    {"Russian", WordKind::encryption, "none", "Нет|Отсутствует|Без шифрования", WordSource::unverified},
    {"Russian", WordKind::connectionMode, "auto", "Автоматическое подключение|Автоматически|Подключаться автоматически", WordSource::unverified},
    {"Russian", WordKind::connectionMode, "manual", "Профиль", WordSource::unverified},
    {"Russian", WordKind::radioSwitch, "on", "Вкл|Вкл.|Включено|Включен|Включена", WordSource::unverified},
    {"Russian", WordKind::radioSwitch, "off", "Выкл|Выкл.|Выключено|Выключен|Выключена", WordSource::unverified},
    {"Japanese", WordKind::networkType, "infrastructure", "インフラストラクチャ", WordSource::unverified},
    {"Japanese", WordKind::networkType, "independent", "アドホック|アド ホック", WordSource::unverified},
    {"Japanese", WordKind::authentication, "open", "オープン|オープン システム", WordSource::unverified},
    {"Japanese", WordKind::authentication, "shared", "共有", WordSource::unverified},
    {"Japanese", WordKind::authentication, "personal", "パーソナル|個人用", WordSource::unverified},
    {"Japanese", WordKind::authentication, "enterprise", "エンタープライズ", WordSource::unverified},
    {"Japanese", WordKind::encryption, "none", "なし", WordSource::unverified},
    {"Japanese", WordKind::connectionMode, "auto", "自動接続", WordSource::unverified},
    {"Japanese", WordKind::connectionMode, "manual", "プロファイル", WordSource::unverified},
    {"Japanese", WordKind::radioSwitch, "on", "オン", WordSource::unverified},
    {"Japanese", WordKind::radioSwitch, "off", "オフ", WordSource::unverified},
    {"Korean", WordKind::networkType, "infrastructure", "인프라", WordSource::capture},
    {"Korean", WordKind::networkType, "independent", "임시|애드혹", WordSource::unverified},
    {"Korean", WordKind::authentication, "open", "개방|열림|열기", WordSource::unverified},
    {"Korean", WordKind::authentication, "shared", "공유", WordSource::unverified},
    {"Korean", WordKind::authentication, "personal", "개인", WordSource::capture},
    {"Korean", WordKind::authentication, "personal", "개인용", WordSource::unverified},
    {"Korean", WordKind::authentication, "enterprise", "엔터프라이즈|기업", WordSource::unverified},
    {"Korean", WordKind::encryption, "none", "없음", WordSource::unverified},
    {"Korean", WordKind::connectionMode, "auto", "자동 연결", WordSource::capture},
    {"Korean", WordKind::connectionMode, "manual", "프로필", WordSource::unverified},
    {"Korean", WordKind::radioSwitch, "on", "켜짐|켬|켜기", WordSource::unverified},
    {"Korean", WordKind::radioSwitch, "off", "꺼짐|끔|끄기", WordSource::unverified},
    {"simplified Chinese", WordKind::networkType, "infrastructure", "结构|基础结构", WordSource::unverified},
    {"simplified Chinese", WordKind::networkType, "independent", "临时", WordSource::unverified},
    {"simplified Chinese", WordKind::authentication, "open", "开放式|开放", WordSource::unverified},
    {"simplified Chinese", WordKind::authentication, "shared", "共享|共享式", WordSource::unverified},
    {"simplified Chinese", WordKind::authentication, "OWE", "增强型开放", WordSource::unverified},
    {"simplified Chinese", WordKind::authentication, "personal", "个人", WordSource::unverified},
    {"simplified Chinese", WordKind::authentication, "enterprise", "企业", WordSource::unverified},
    {"simplified Chinese", WordKind::encryption, "none", "无", WordSource::unverified},
    {"simplified Chinese", WordKind::connectionMode, "auto", "自动连接", WordSource::unverified},
    {"simplified Chinese", WordKind::connectionMode, "manual", "配置文件", WordSource::unverified},
    {"simplified Chinese", WordKind::radioSwitch, "on", "开|打开|开启", WordSource::unverified},
    {"simplified Chinese", WordKind::radioSwitch, "off", "关|关闭", WordSource::unverified},
    {"traditional Chinese", WordKind::networkType, "infrastructure", "基礎結構", WordSource::unverified},
    {"traditional Chinese", WordKind::networkType, "independent", "即席|臨機操作|特定", WordSource::unverified},
    {"traditional Chinese", WordKind::authentication, "open", "開放式|開放|開放系統", WordSource::unverified},
    {"traditional Chinese", WordKind::authentication, "shared", "共用", WordSource::unverified},
    {"traditional Chinese", WordKind::authentication, "OWE", "增強型開放", WordSource::unverified},
    {"traditional Chinese", WordKind::authentication, "personal", "個人", WordSource::unverified},
    {"traditional Chinese", WordKind::authentication, "enterprise", "企業", WordSource::unverified},
    {"traditional Chinese", WordKind::encryption, "none", "無", WordSource::unverified},
    {"traditional Chinese", WordKind::connectionMode, "auto", "自動連線", WordSource::unverified},
    {"traditional Chinese", WordKind::connectionMode, "manual", "設定檔", WordSource::unverified},
    {"traditional Chinese", WordKind::radioSwitch, "on", "開|開啟|開啓", WordSource::unverified},
    {"traditional Chinese", WordKind::radioSwitch, "off", "關|關閉", WordSource::unverified},
    {"Dutch", WordKind::networkType, "infrastructure", "Infrastructuur", WordSource::unverified},
    {"Dutch", WordKind::authentication, "shared", "Gedeeld", WordSource::unverified},
    {"Dutch", WordKind::authentication, "personal", "Persoonlijk", WordSource::unverified},
    {"Dutch", WordKind::authentication, "enterprise", "Onderneming", WordSource::unverified},
    {"Dutch", WordKind::encryption, "none", "Geen", WordSource::unverified},
    {"Dutch", WordKind::connectionMode, "auto", "Automatisch", WordSource::unverified},
    {"Dutch", WordKind::connectionMode, "manual", "Profiel", WordSource::unverified},
    {"Dutch", WordKind::radioSwitch, "on", "Aan", WordSource::unverified},
    {"Dutch", WordKind::radioSwitch, "off", "Uit", WordSource::unverified},
    {"Swedish", WordKind::authentication, "open", "Öppen", WordSource::unverified},
    {"Swedish", WordKind::authentication, "shared", "Delad", WordSource::unverified},
    {"Swedish", WordKind::authentication, "enterprise", "Företag", WordSource::unverified},
    {"Swedish", WordKind::encryption, "none", "Ingen", WordSource::unverified},
    {"Swedish", WordKind::radioSwitch, "on", "På", WordSource::unverified},
    {"Swedish", WordKind::radioSwitch, "off", "Av", WordSource::unverified},
    {"Danish", WordKind::authentication, "open", "Åben", WordSource::unverified},
    {"Danish", WordKind::authentication, "shared", "Delt", WordSource::unverified},
    {"Danish", WordKind::authentication, "personal", "Privat", WordSource::unverified},
    {"Danish", WordKind::authentication, "enterprise", "Virksomhed", WordSource::unverified},
    {"Danish", WordKind::radioSwitch, "off", "Fra", WordSource::unverified},
    {"Norwegian", WordKind::authentication, "open", "Åpen", WordSource::unverified},
    {"Norwegian", WordKind::authentication, "enterprise", "Bedrift", WordSource::unverified},
    {"Finnish", WordKind::networkType, "infrastructure", "Infrastruktuuri", WordSource::unverified},
    {"Finnish", WordKind::authentication, "open", "Avoin", WordSource::unverified},
    {"Finnish", WordKind::authentication, "personal", "Henkilökohtainen", WordSource::unverified},
    {"Finnish", WordKind::authentication, "enterprise", "Yritys", WordSource::unverified},
    {"Finnish", WordKind::encryption, "none", "Ei mitään", WordSource::unverified},
    {"Finnish", WordKind::radioSwitch, "on", "Päällä", WordSource::unverified},
    {"Finnish", WordKind::radioSwitch, "off", "Pois päältä", WordSource::unverified},
    {"Turkish", WordKind::networkType, "infrastructure", "Altyapı", WordSource::capture},
    {"Turkish", WordKind::authentication, "open", "Açık", WordSource::unverified},
    {"Turkish", WordKind::authentication, "shared", "Paylaşılan", WordSource::unverified},
    {"Turkish", WordKind::authentication, "personal", "Kişisel", WordSource::capture},
    {"Turkish", WordKind::authentication, "enterprise", "Kurumsal", WordSource::unverified},
    {"Turkish", WordKind::encryption, "none", "Yok", WordSource::unverified},
    {"Turkish", WordKind::radioSwitch, "on", "Açık", WordSource::unverified},
    {"Turkish", WordKind::radioSwitch, "off", "Kapalı", WordSource::unverified},
    {"Czech", WordKind::authentication, "open", "Otevřené", WordSource::unverified},
    {"Czech", WordKind::authentication, "shared", "Sdílené", WordSource::unverified},
    {"Czech", WordKind::authentication, "personal", "Osobní", WordSource::unverified},
    {"Czech", WordKind::authentication, "enterprise", "Podnikové", WordSource::unverified},
    {"Czech", WordKind::encryption, "none", "Žádné", WordSource::unverified},
    {"Czech", WordKind::radioSwitch, "on", "Zapnuto", WordSource::unverified},
    {"Czech", WordKind::radioSwitch, "off", "Vypnuto", WordSource::unverified},
    {"Hungarian", WordKind::authentication, "open", "Nyílt", WordSource::unverified},
    {"Romanian", WordKind::authentication, "open", "Deschis", WordSource::unverified},
};
// clang-format on

struct FoldedWord
{
    WordKind kind;
    std::string_view meaning;
    std::u32string text; ///< as ComparedText has it
};

std::vector<FoldedWord> FoldWords()
{
    std::vector<FoldedWord> folded;
    for (const CaptureWord& entry : kCaptureWords)
        for (std::string_view rest = entry.words; !rest.empty();)
        {
            const std::size_t end = std::min(rest.find('|'), rest.size());
            folded.push_back({entry.kind, entry.meaning, ComparedText(rest.substr(0, end))});
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    return folded;
}

const std::vector<FoldedWord>& FoldedWords()
{
    static const std::vector<FoldedWord> words = FoldWords();
    return words;
}

/// Whether a text's last word, which the scripts without blanks do not set apart, is this one.
bool EndsWithWord(const std::u32string& text, const std::u32string& word)
{
    if (!text.ends_with(word))
        return false;
    const std::size_t before = text.size() - word.size();
    const bool latin = word.front() < 0x500;
    return before == 0 || !latin || text[before - 1] == U' ' || text[before - 1] == U':';
}

} // namespace

std::optional<std::string_view> MeaningOf(WordKind kind, std::string_view word)
{
    const std::u32string wanted = ComparedText(word);
    const std::vector<FoldedWord>& words = FoldedWords();
    const auto found =
        std::find_if(words.begin(), words.end(),
                     [&](const FoldedWord& known) { return known.kind == kind && known.text == wanted; });
    return found == words.end() ? std::nullopt : std::optional(found->meaning);
}

std::optional<std::string> Explained(const Vocabulary& vocabulary, std::string_view word)
{
    const std::u32string wanted = ComparedText(word);
    for (const auto& [text, meaning] : vocabulary.explained)
        if (ComparedText(text) == wanted)
            return meaning;
    return std::nullopt;
}

std::optional<std::string_view> SwitchOf(std::string_view text)
{
    const std::u32string compared = ComparedText(text);
    std::optional<std::string_view> meaning;
    std::size_t longest = 0;
    // The longest, because "désactivé" ends like "activé" where a script has no blanks.
    for (const FoldedWord& word : FoldedWords())
        if (word.kind == WordKind::radioSwitch && word.text.size() > longest && EndsWithWord(compared, word.text))
        {
            meaning = word.meaning;
            longest = word.text.size();
        }
    return meaning;
}

} // namespace calvix::host

#include "import/capture_words.h"

#include "import/letter_case.h"

#include <algorithm>
#include <array>

namespace calvix::host
{

namespace
{

struct CaptureWord
{
    WordKind kind;
    std::string_view meaning;
    std::string_view words; ///< separated by bars, UTF-8
};

/// In the order English, German, French, Italian, Spanish, Portuguese, Polish, Russian, Japanese, Korean, simplified
/// Chinese, traditional Chinese; then whatever other languages have.
constexpr std::array<CaptureWord, 12> kCaptureWords{{
    {WordKind::networkType, "infrastructure",
     "Infrastructure|Infrastruktur|Infrastruttura|Infraestructura|Infraestrutura|Infrastruktura|Инфраструктура|"
     "インフラストラクチャ|인프라|结构|基础结构|基礎結構|Infrastructuur|Altyapı|Infrastruktuuri"},
    {WordKind::networkType, "independent",
     "Adhoc|Ad hoc|Ad-hoc|Ad-hoc-Netz|Ad-Hoc-Netzwerk|Réseau ad hoc|Rede ad hoc|Red ad hoc|Одноранговая|Одноранговая "
     "сеть|Компьютер-компьютер|アドホック|アド ホック|임시|애드혹|临时|即席|臨機操作|特定"},
    {WordKind::authentication, "open",
     "Open|Offen|Ouvert|Ouverte|Aperta|Aperto|Abierta|Abierto|Sistema abierto|Aberta|Aberto|Otwarte|Otwarty|Otwarta|"
     "Открытая|Открытый|Открыта|オープン|オープン "
     "システム|개방|열림|열기|开放式|开放|開放式|開放|開放系統|Öppen|Åben|Åpen|Avoin|Açık|"
     "Otevřené|Nyílt|Deschis"},
    {WordKind::authentication, "shared",
     "Shared|Gemeinsam|Gemeinsam verwendet|Freigegeben|Partagé|Partagée|Condivisa|Condiviso|Compartida|Compartido|"
     "Compartilhada|Compartilhado|Partilhada|Współużytkowane|Współdzielone|Udostępnione|Общая|Совместная|共有|공유|"
     "共享|共享式|共用|Gedeeld|Delad|Delt|Sdílené|Paylaşılan"},
    {WordKind::authentication, "OWE", "OWE|Enhanced Open|Erweitert offen|Ouvert amélioré|增强型开放|增強型開放"},
    {WordKind::authentication, "personal",
     "Personal|Persönlich|Personnel|Personale|Pessoal|Osobiste|Osobisty|Osobista|Личное|Личная|Персональная|"
     "Персональный|Персонал|パーソナル|個人用|개인|개인용|个人|個人|Persoonlijk|Privat|Henkilökohtainen|Osobní|Kişisel|"
     "PSK"},
    {WordKind::authentication, "enterprise",
     "Enterprise|Unternehmen|Entreprise|Aziendale|Azienda|Empresa|Empresarial|Corporativo|Przedsiębiorstwo|Firmowe|"
     "Korporacyjna|Предприятие|Корпоративная|Корпоративный|エンタープライズ|엔터프라이즈|기업|企业|企業|Onderneming|"
     "Företag|Virksomhed|"
     "Bedrift|Yritys|Podnikové|Kurumsal"},
    {WordKind::encryption, "none",
     "None|Keine|Kein|Ohne|Aucun|Aucune|Nessuna|Nessuno|Ninguna|Ninguno|Nenhuma|Nenhum|Brak|Żadne|Нет|Отсутствует|"
     "Без шифрования|なし|없음|无|無|Geen|Ingen|Ei mitään|Žádné|Yok"},
    {WordKind::connectionMode, "auto",
     "Auto Connect|Automatisch verbinden|Automatische Verbindung|Connexion automatique|Connessione automatica|Conexión "
     "automática|Conexão Automática|Ligação automática|Połącz automatycznie|Automatyczne łączenie|Łącz automatycznie|"
     "Автоматическое подключение|Автоматически|Подключаться автоматически|自動接続|자동 연결|自动连接|自動連線|"
     "Automatisch"},
    {WordKind::connectionMode, "manual",
     "Profile|Manual connect|Profil|Manuell "
     "verbinden|Profilo|Perfil|Профиль|プロファイル|프로필|配置文件|設定檔|Profiel"},
    {WordKind::radioSwitch, "on",
     "On|Ein|Eingeschaltet|An|Activé|Activée|Attivo|Attiva|Attivato|Attivata|Activado|Activada|Ativado|Ativada|Ligado|"
     "Włączone|Włączony|Wł.|Wł|Włącz|Вкл|Вкл.|Включено|Включен|Включена|オン|켜짐|켬|켜기|开|打开|开启|開|開啟|開啓|"
     "Aan|På|Päällä|Zapnuto|"
     "Açık"},
    {WordKind::radioSwitch, "off",
     "Off|Aus|Ausgeschaltet|Désactivé|Désactivée|Disattivo|Disattiva|Disattivato|Disattivata|Desactivado|Desactivada|"
     "Desativado|Desativada|Desligado|Wyłączone|Wyłączony|Wył.|Wył|Wyłącz|Выкл|Выкл.|Выключено|Выключен|Выключена|"
     "オフ|꺼짐|끔|끄기|关|关闭|關|關閉|Uit|Av|Fra|Pois päältä|Vypnuto|Kapalı"},
}};

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

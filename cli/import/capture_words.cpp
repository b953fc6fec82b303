#include "import/capture_words.h"

#include "import/capture_text.h"

#include <algorithm>

namespace calvix::host
{

namespace
{

/// Where words were seen.
enum class Source
{
    capture,   ///< another person's computer printed it
    unverified ///< the language's word for it; there is no capture yet
};

/// Words of one language and one source, as "meaning=word|word; meaning=word".
struct CaptureWords
{
    std::string_view language;
    Source source;
    std::string_view words;
};

// clang-format off
constexpr CaptureWords kCaptureWords[] = {
    {"English", Source::capture,
     "infrastructure=Infrastructure; open=Open; personal=Personal; none=None; auto=Auto Connect; "
     "manual=Profile; on=On"},
    {"English", Source::unverified,
     "independent=Adhoc|Ad hoc|Ad-hoc; shared=Shared; OWE=OWE|Enhanced Open; personal=PSK; "
     "enterprise=Enterprise; manual=Manual connect; off=Off"},
    {"German", Source::capture, "infrastructure=Infrastruktur"},
    {"German", Source::unverified,
     "independent=Ad-hoc-Netz|Ad-Hoc-Netzwerk; open=Offen; shared=Gemeinsam|Gemeinsam verwendet|Freigegeben; "
     "OWE=Erweitert offen; personal=Persönlich; enterprise=Unternehmen; none=Keine|Kein|Ohne; "
     "auto=Automatisch verbinden|Automatische Verbindung; manual=Profil|Manuell verbinden; "
     "on=Ein|Eingeschaltet|An; off=Aus|Ausgeschaltet"},
    {"French", Source::unverified,
     "independent=Réseau ad hoc; open=Ouvert|Ouverte; shared=Partagé|Partagée; OWE=Ouvert amélioré; "
     "personal=Personnel; enterprise=Entreprise; none=Aucun|Aucune; auto=Connexion automatique; "
     "on=Activé|Activée; off=Désactivé|Désactivée"},
    {"Italian", Source::unverified,
     "infrastructure=Infrastruttura; open=Aperta|Aperto; shared=Condivisa|Condiviso; personal=Personale; "
     "enterprise=Aziendale|Azienda; none=Nessuna|Nessuno; auto=Connessione automatica; manual=Profilo; "
     "on=Attivo|Attiva|Attivato|Attivata; off=Disattivo|Disattiva|Disattivato|Disattivata"},
    {"Spanish", Source::unverified,
     "infrastructure=Infraestructura; independent=Red ad hoc; open=Abierta|Abierto|Sistema abierto; "
     "shared=Compartida|Compartido; enterprise=Empresa|Empresarial; none=Ninguna|Ninguno; "
     "auto=Conexión automática; manual=Perfil; on=Activado|Activada; off=Desactivado|Desactivada"},
    {"Portuguese", Source::unverified,
     "infrastructure=Infraestrutura; independent=Rede ad hoc; open=Aberta|Aberto; "
     "shared=Compartilhada|Compartilhado|Partilhada; personal=Pessoal; enterprise=Corporativo; "
     "none=Nenhuma|Nenhum; auto=Conexão Automática|Ligação automática; on=Ativado|Ativada|Ligado; "
     "off=Desativado|Desativada|Desligado"},
    {"Polish", Source::unverified,
     "infrastructure=Infrastruktura; open=Otwarte|Otwarty|Otwarta; "
     "shared=Współużytkowane|Współdzielone|Udostępnione; personal=Osobiste|Osobisty|Osobista; "
     "enterprise=Przedsiębiorstwo|Firmowe|Korporacyjna; none=Brak|Żadne; "
     "auto=Połącz automatycznie|Automatyczne łączenie|Łącz automatycznie; on=Włączone|Włączony|Wł.|Wł|Włącz; "
     "off=Wyłączone|Wyłączony|Wył.|Wył|Wyłącz"},
    {"Russian", Source::unverified,
     "infrastructure=Инфраструктура; independent=Одноранговая|Одноранговая сеть|Компьютер-компьютер; "
     "open=Открытая|Открытый|Открыта; shared=Общая|Совместная; "
     "personal=Личное|Личная|Персональная|Персональный|Персонал; "
     "enterprise=Предприятие|Корпоративная|Корпоративный; none=Нет|Отсутствует|Без шифрования; "
     "auto=Автоматическое подключение|Автоматически|Подключаться автоматически; manual=Профиль; "
     "on=Вкл|Вкл.|Включено|Включен|Включена; off=Выкл|Выкл.|Выключено|Выключен|Выключена"},
    {"Japanese", Source::unverified,
     "infrastructure=インフラストラクチャ; independent=アドホック|アド ホック; open=オープン|オープン システム; shared=共有; personal=パーソナル|個人用; "
     "enterprise=エンタープライズ; none=なし; auto=自動接続; manual=プロファイル; on=オン; off=オフ"},
    {"Korean", Source::capture, "infrastructure=인프라; personal=개인; auto=자동 연결"},
    {"Korean", Source::unverified,
     "independent=임시|애드혹; open=개방|열림|열기; shared=공유; personal=개인용; enterprise=엔터프라이즈|기업; none=없음; manual=프로필; "
     "on=켜짐|켬|켜기; off=꺼짐|끔|끄기"},
    {"simplified Chinese", Source::unverified,
     "infrastructure=结构|基础结构; independent=临时; open=开放式|开放; shared=共享|共享式; OWE=增强型开放; personal=个人; "
     "enterprise=企业; none=无; auto=自动连接; manual=配置文件; on=开|打开|开启; off=关|关闭"},
    {"traditional Chinese", Source::unverified,
     "infrastructure=基礎結構; independent=即席|臨機操作|特定; open=開放式|開放|開放系統; shared=共用; OWE=增強型開放; personal=個人; "
     "enterprise=企業; none=無; auto=自動連線; manual=設定檔; on=開|開啟|開啓; off=關|關閉"},
    {"Dutch", Source::unverified,
     "infrastructure=Infrastructuur; shared=Gedeeld; personal=Persoonlijk; enterprise=Onderneming; none=Geen; "
     "auto=Automatisch; manual=Profiel; on=Aan; off=Uit"},
    {"Swedish", Source::unverified, "open=Öppen; shared=Delad; enterprise=Företag; none=Ingen; on=På; off=Av"},
    {"Danish", Source::unverified, "open=Åben; shared=Delt; personal=Privat; enterprise=Virksomhed; off=Fra"},
    {"Norwegian", Source::unverified, "open=Åpen; enterprise=Bedrift"},
    {"Finnish", Source::unverified,
     "infrastructure=Infrastruktuuri; open=Avoin; personal=Henkilökohtainen; enterprise=Yritys; "
     "none=Ei mitään; on=Päällä; off=Pois päältä"},
    {"Turkish", Source::capture, "infrastructure=Altyapı; personal=Kişisel"},
    {"Turkish", Source::unverified,
     "open=Açık; shared=Paylaşılan; enterprise=Kurumsal; none=Yok; on=Açık; off=Kapalı"},
    {"Czech", Source::unverified,
     "open=Otevřené; shared=Sdílené; personal=Osobní; enterprise=Podnikové; none=Žádné; on=Zapnuto; off=Vypnuto"},
    {"Hungarian", Source::unverified, "open=Nyílt"},
    {"Romanian", Source::unverified, "open=Deschis"},
};
// clang-format on

bool IsHyphen(char32_t letter)
{
    return letter == U'-' || (letter >= U'\u2010' && letter <= U'\u2014') || letter == U'\uFF0D';
}

/// A text as words are compared: small letters, no blanks around hyphens, plain hyphens.
std::u32string ComparedText(std::string_view utf8)
{
    constexpr std::u32string_view kSpaces = U" \t\u00A0\u202F\u3000";
    std::u32string text;
    bool afterSpace = false;
    for (const char32_t letter : CodePoints(utf8))
    {
        const bool isSpace = kSpaces.find(letter) != std::u32string_view::npos;
        const bool joins = text.empty() || text.back() == U'-' || IsHyphen(letter);
        if (!isSpace && afterSpace && !joins)
            text += U' ';
        if (!isSpace)
            text += IsHyphen(letter) ? U'-' : SmallLetter(letter);
        afterSpace = isSpace;
    }
    return text;
}

struct KnownWord
{
    std::string_view meaning;
    std::u32string text; ///< as ComparedText has it
};

/// Removes the part of a text before a separator.
std::string_view Next(std::string_view& text, char separator)
{
    const std::size_t end = std::min(text.find(separator), text.size());
    const std::string_view part = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return Trim(part);
}

std::vector<KnownWord> ReadWords()
{
    std::vector<KnownWord> known;
    for (const CaptureWords& row : kCaptureWords)
        for (std::string_view rest = row.words; !rest.empty();)
        {
            std::string_view words = Next(rest, ';');
            const std::string_view meaning = Next(words, '=');
            while (!words.empty())
                known.push_back({meaning, ComparedText(Next(words, '|'))});
        }
    return known;
}

const std::vector<KnownWord>& KnownWords()
{
    static const std::vector<KnownWord> words = ReadWords();
    return words;
}

/// Whether a text's last word, which the scripts without blanks do not set apart, is this one.
bool EndsWithWord(const std::u32string& text, const std::u32string& word)
{
    if (!text.ends_with(word))
        return false;
    const std::size_t before = text.size() - word.size();
    const bool isAlphabet = word.front() < 0x500;
    return before == 0 || !isAlphabet || text[before - 1] == U' ' || text[before - 1] == U':';
}

} // namespace

std::string Vocabulary::Explained(std::string_view word) const
{
    const std::u32string wanted = ComparedText(word);
    const auto found = std::find_if(explained.begin(), explained.end(),
                                    [&](const auto& each) { return ComparedText(each.first) == wanted; });
    return found == explained.end() ? "" : found->second;
}

std::string Vocabulary::MeaningOf(std::string_view word, std::initializer_list<std::string_view> meanings) const
{
    if (std::string own = Explained(word); !own.empty())
        return own;
    const std::u32string wanted = ComparedText(word);
    for (const KnownWord& known : KnownWords())
        if (known.text == wanted && std::find(meanings.begin(), meanings.end(), known.meaning) != meanings.end())
            return std::string(known.meaning);
    return {};
}

std::string_view SwitchOf(std::string_view text)
{
    const std::u32string compared = ComparedText(text);
    const KnownWord* longest = nullptr;
    // The longest, because "désactivé" ends like "activé" where a script has no blanks.
    for (const KnownWord& known : KnownWords())
        if ((known.meaning == "on" || known.meaning == "off") && EndsWithWord(compared, known.text) &&
            (longest == nullptr || known.text.size() > longest->text.size()))
            longest = &known;
    return longest != nullptr ? longest->meaning : "";
}

} // namespace calvix::host

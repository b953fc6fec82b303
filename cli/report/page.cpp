#include "report/page.h"

#include "output/text_forms.h"
#include "report/html_text.h"
#include "report/page_parts.h"
#include "report/report_json.h"

#include <functional>

namespace calvix::host
{

namespace
{

std::string SubtitleText(const ReportFacts& report)
{
    std::string text = report.status ? VisibleText(report.status->adapter.description) : std::string();
    if (!report.heardAt.empty())
        text += (text.empty() ? "" : " \xc2\xb7 ") + ("heard until " + report.heardAt);
    return EscapeHtml(text);
}

std::string SignalSection(const ReportFacts& report)
{
    if (report.history.samples.size() < 2)
        return {};
    return "<section aria-labelledby=\"signal\"><h2 id=\"signal\">Signal over time</h2>\n" + SignalPicture(report) +
           "</section>\n";
}

/// What identifies style and script to the page's policy. It follows from everything that was heard, so a person who chooses
/// one network's name cannot foretell it, and the same report is the same page.
std::string Nonce(const std::string& data)
{
    return std::to_string(std::hash<std::string>()(data));
}

} // namespace

std::string ReportPage(const ReportFacts& report)
{
    const std::string data = ReportJson(report);
    return FillTemplate(kPageTemplate, {{"title", EscapeHtml(report.title)},
                                        {"subtitle", SubtitleText(report)},
                                        {"style", kPageStyle},
                                        {"nonce", Nonce(data)},
                                        {"script", kPageScript},
                                        {"data", data},
                                        {"missing", MissingParts(report)},
                                        {"keys", KeyFacts(report)},
                                        {"spectrum", SpectrumPicture(report)},
                                        {"signal", SignalSection(report)},
                                        {"rows", AccessPointRows(report)},
                                        {"adapters", AdapterItems(report)},
                                        {"connection", ConnectionItems(report)},
                                        {"profiles", ProfileItems(report)},
                                        {"choices", ChoiceTable(report)}});
}

} // namespace calvix::host

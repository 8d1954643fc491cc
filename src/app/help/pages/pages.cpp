#include "app/help/pages/pages.hpp"

#include "platform/windows1252.hpp"

namespace kov::help {
namespace {

/// The program's text in HTML or XML, in UTF-8.
std::string escaped(std::string_view text) {
    std::string safe;
    for (const char c : utf8OfText(text)) {
        switch (c) {
        case '&':
            safe += "&amp;";
            break;
        case '<':
            safe += "&lt;";
            break;
        case '>':
            safe += "&gt;";
            break;
        case '"':
            safe += "&quot;";
            break;
        default:
            safe += c;
        }
    }
    return safe;
}

std::string page(std::string_view title, std::string_view body) {
    std::string html = "<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>";
    html += escaped(title);
    html += "</title><link rel=\"stylesheet\" href=\"help.css\"></head>\n<body>\n<h1>";
    html += escaped(title);
    html += "</h1>\n";
    html += body;
    return html + "</body></html>\n";
}

std::string cell(std::string_view text) { return "<td>" + (text.empty() ? "&nbsp;" : escaped(text)) + "</td>"; }

std::string anchorHtml(std::string_view name) { return "<a name=\"" + escaped(name) + "\"></a>"; }

std::string rowHtml(const HelpRow& row) {
    // A box beside another has no caption of its own: its hint names it, up to the range.
    const auto name = row.caption.empty() ? row.hint.substr(0, row.hint.find(':')) : row.caption;
    std::string html = "<tr><td>";
    for (const auto& anchor : row.anchors) {
        html += anchorHtml(anchor);
    }
    html += "<b>" + escaped(name) + "</b></td>";
    html += cell(row.unit) + cell(row.range) + cell(row.hint) + cell(row.place);
    return html + "</tr>\n";
}

std::string tableHtml(const HelpTable& table) {
    std::string html = "<h2>" + (table.anchor.empty() ? "" : anchorHtml(table.anchor)) + escaped(table.title) +
                       "</h2>\n<table border=\"1\" cellspacing=\"0\" cellpadding=\"4\">\n";
    html += "<tr><th>Entry</th><th>Unit</th><th>Allowable</th><th>Hint</th><th>On the card</th></tr>\n";
    for (const auto& row : table.rows) {
        html += rowHtml(row);
    }
    return html + "</table>\n";
}

std::string fileOf(std::string_view name) { return std::string(name) + ".html"; }

std::string section(std::string_view title, std::string_view name, bool open = false) {
    return "<section title=\"" + escaped(title) + "\" ref=\"" + fileOf(name) + (open ? "\">\n" : "\"/>\n");
}

std::string keyword(std::string_view name, std::string_view id, std::string_view ref) {
    std::string xml = "<keyword name=\"" + escaped(name) + '"';
    if (!id.empty()) {
        xml += " id=\"" + escaped(id) + '"';
    }
    return xml + " ref=\"" + escaped(ref) + "\"/>\n";
}

std::string keywordsOf(const HelpTopic& topic) {
    std::string xml = keyword(topic.title, topic.window, fileOf(topic.window));
    for (const int context : topic.contexts) {
        xml += keyword(topic.title, std::to_string(context), fileOf(topic.window));
    }
    for (const auto& table : topic.tables) {
        for (const auto& row : table.rows) {
            if (!row.caption.empty()) {
                xml += keyword(row.caption + ", " + topic.title, "", fileOf(topic.window) + "#" + row.anchors.front());
            }
        }
    }
    return xml;
}

std::string contents() {
    const auto pages = guide();
    std::string xml = section(pages.front().title, pages.front().name, true);
    for (const auto& guidePage : pages.subspan(1)) {
        xml += section(guidePage.title, guidePage.name);
    }
    for (const auto& topic : topics()) {
        xml += section(topic.title, topic.window);
    }
    return xml + "</section>\n";
}

} // namespace

std::string topicPage(const HelpTopic& topic, std::string_view introduction) {
    std::string body(introduction);
    for (const auto& table : topic.tables) {
        if (!table.rows.empty()) {
            body += tableHtml(table);
        }
    }
    return page(topic.title, body);
}

std::string guidePage(const GuidePage& guidePage, std::string_view body) { return page(guidePage.title, body); }

std::string styleSheet() {
    return "h1 { font-size: x-large; }\nh2 { font-size: large; margin-top: 18px; }\n"
           "p, li { line-height: 130%; }\ntable { border-collapse: collapse; margin-top: 6px; }\n"
           "th { text-align: left; }\n";
}

std::string helpProject() {
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QtHelpProject version=\"1.0\">\n<namespace>";
    xml.append(Namespace).append("</namespace>\n<virtualFolder>help</virtualFolder>\n<filterSection>\n<toc>\n");
    xml += contents() + "</toc>\n<keywords>\n";
    for (const auto& page : guide()) {
        xml += keyword(page.title, page.name, fileOf(page.name));
    }
    for (const auto& topic : topics()) {
        xml += keywordsOf(topic);
    }
    xml += "</keywords>\n<files>\n<file>help.css</file>\n";
    for (const auto& page : guide()) {
        xml += "<file>" + fileOf(page.name) + "</file>\n";
    }
    for (const auto& topic : topics()) {
        xml += "<file>" + fileOf(topic.window) + "</file>\n";
    }
    return xml + "</files>\n</filterSection>\n</QtHelpProject>\n";
}

std::string collectionProject() {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<QHelpCollectionProject version=\"1.0\">\n"
           "<assistant><title>KOV Input Data</title></assistant>\n<docFiles>\n"
           "<generate><file><input>kovin.qhp</input><output>kovin.qch</output></file></generate>\n"
           "<register><file>kovin.qch</file></register>\n</docFiles>\n</QHelpCollectionProject>\n";
}

} // namespace kov::help

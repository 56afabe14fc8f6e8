#pragma once
// What a screen hands to the report engine, whole. The screens never format output themselves.

#include <map>
#include <string>

namespace varnik {

struct ReportRequest {
    std::string Connect;  // connection string; "" uses the session's own
    std::string SQLQuery; // replaces the definition's stored query; "" leaves it
    std::string WindowTitle;
    std::string ReportTitle;
    std::string ReportFileName;                 // folder, "\Report\", file name
    std::map<int, std::string> Formulas;        // "Judul1 ='text'"; the index is a property of the report
    std::map<int, std::string> ParameterFields; // "Detail;S;True"
    int WindowState = 2;                        // 2 maximised, 0 normal

    // The four title formulas from the company texts, from this index on.
    void SetTitles(int first, const std::string& name, const std::string& line1, const std::string& line2,
                   const std::string& line3);
};

} // namespace varnik

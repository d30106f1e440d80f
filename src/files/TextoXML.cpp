#include "TextoXML.h"

std::string EscaparXML(std::string_view texto) {
    std::string escapado;
    for (const char c : texto) {
        if (c == '&')
            escapado += "&amp;";
        else if (c == '<')
            escapado += "&lt;";
        else if (c == '\'')
            escapado += "&apos;";
        else
            escapado += c;
    }
    return escapado;
}

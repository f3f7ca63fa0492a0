// Writes a man page or a shell's completions from a template, the command's tables, and named texts
// from its own command line.
#include <algorithm>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "cli/documents/Fragments.h"

using namespace tarnwick;

namespace {

Fragments givenFragments(const std::vector<std::string>& given) {
    Fragments fragments;
    for (const std::string& one : given) {
        const std::size_t equals = std::min(one.find('='), one.size() - 1);
        fragments[one.substr(0, equals)] = one.substr(equals + 1);
    }
    return fragments;
}

Fragments allFragments(const std::vector<std::string>& given) {
    const ItemCatalogue catalogue;
    Fragments fragments = givenFragments(given);
    fragments.merge(manPageFragments(catalogue));
    fragments.merge(completionFragments(catalogue));
    return fragments;
}

int fail(const std::string& fault) {
    std::cerr << "tarnwick-documents: " << fault << "\n";
    return 1;
}

}  // namespace

int main(int count, char** values) {
    if (count < 3)
        return fail("usage: tarnwick-documents TEMPLATE OUTPUT [NAME=TEXT]...");
    std::ifstream input(values[1]);
    if (!input)
        return fail(std::string(values[1]) + " cannot be read");
    const std::string text(std::istreambuf_iterator<char>(input), {});
    std::string unknown;
    const auto document = filled(text, allFragments({values + 3, values + count}), unknown);
    if (!document)
        return fail(std::string(values[1]) + " has a place for " + unknown + ", which is unknown");
    std::ofstream output(values[2]);
    output << *document << std::flush;
    return output ? 0 : fail(std::string(values[2]) + " cannot be written");
}

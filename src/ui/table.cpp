#include "ui/table.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <numeric>
#include <string_view>

namespace velk {

namespace {

/// Texts whose byte order is the collation order of the locale; made once a cell, because a
/// comparison by collation is far dearer than one of bytes.
std::vector<std::string> collation_keys(const std::vector<std::string>& cells) {
    std::vector<std::string> keys;
    keys.reserve(cells.size());
    for (const std::string& cell : cells) {
        std::string key(std::strxfrm(nullptr, cell.c_str(), 0) + 1, '\0');
        std::strxfrm(key.data(), cell.c_str(), key.size());
        keys.push_back(std::move(key));
    }
    return keys;
}

/// "nan" is a number to strtod, but has no place in an order.
double number_or_zero(double number) {
    return std::isnan(number) ? 0 : number;
}

double leading_number(const std::string& cell) {
    return number_or_zero(std::strtod(cell.c_str(), nullptr));
}

double bytes_of_size(const std::string& cell) {
    char* unit = nullptr;
    const double number = number_or_zero(std::strtod(cell.c_str(), &unit));
    while (*unit == ' ') ++unit;
    switch (*unit) {
        case 'K':
            return number * 1024;
        case 'M':
            return number * 1024 * 1024;
        case 'G':
            return number * 1024 * 1024 * 1024;
        default:
            return number;
    }
}

template <class Key>
std::vector<int> order_of(const std::vector<Key>& keys, bool ascending) {
    std::vector<int> order(keys.size());
    std::iota(order.begin(), order.end(), 0);
    const auto key = [&](int i) -> const Key& { return keys[static_cast<std::size_t>(i)]; };
    std::stable_sort(order.begin(), order.end(),
                     [&](int a, int b) { return ascending ? key(a) < key(b) : key(b) < key(a); });
    return order;
}

std::vector<int> order_of_numbers(const std::vector<std::string>& cells,
                                  double (*number)(const std::string&), bool ascending) {
    std::vector<double> keys;
    keys.reserve(cells.size());
    std::transform(cells.begin(), cells.end(), std::back_inserter(keys), number);
    return order_of(keys, ascending);
}

}  // namespace

int column_named(const Table_Rows& rows, std::string_view identifier) {
    const auto column =
        std::find_if(rows.columns().begin(), rows.columns().end(),
                     [&](const Column& each) { return each.identifier == identifier; });
    return static_cast<int>(column - rows.columns().begin());
}

std::vector<int> sorted_order(const std::vector<std::string>& cells, Comparison comparison,
                              bool ascending) {
    switch (comparison) {
        case Comparison::number:
            return order_of_numbers(cells, leading_number, ascending);
        case Comparison::size:
            return order_of_numbers(cells, bytes_of_size, ascending);
        case Comparison::text:
            break;
    }
    return order_of(collation_keys(cells), ascending);
}

void Table::reload() {
    ++reloads_;
    select({}, -1);
    changed();
}

void Table::scroll_to_last() {
    ++scrolls_;
    changed();
}

void Table::select(std::vector<int> rows, int last) {
    const int before = selected_row();
    const bool same = rows == selected_ && (rows.empty() || last == before);
    selected_ = std::move(rows);
    last_selected_ = last;
    if (!same && selection_changed_) selection_changed_();
}

void Table::sort(int column, bool ascending) {
    rows_.sort(column, ascending);
    reload();
}

}  // namespace velk

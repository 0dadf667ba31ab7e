#include "database/rows.h"

#include <algorithm>
#include <utility>

#include "failures/errors.h"
#include "text/text_conversion.h"

namespace tallix::ado {
namespace {

// The size of `names` where none fits.
std::size_t PlaceOf(std::string_view name, const std::vector<std::string>& names) {
    const auto found = std::find_if(names.begin(), names.end(),
                                    [&](const std::string& column) { return EqualNoCase(column, name); });
    return static_cast<std::size_t>(found - names.begin());
}

}  // namespace

void Row::ThrowAbsent() {
    throw DatabaseError("The result has no such column");
}

Value Row::Item(std::string_view name) const {
    const std::size_t place = PlaceOf(name, result_->columns);
    if (place == result_->columns.size()) {
        throw DatabaseError("The result has no column \"" + std::string(name) + "\"");
    }
    return result_->rows.At(row_, place);
}

std::string_view Row::Text(std::string_view name) const {
    return Item(name).value_or(std::string_view());
}

Rows::Rows() : Rows(Result()) {}

Rows::Rows(Result result) : result_(std::make_shared<const Result>(std::move(result))) {}

Column Rows::Find(std::string_view name) const {
    const std::size_t place = PlaceOf(name, result_->columns);
    return place == result_->columns.size() ? Column() : Column(place);
}

Row Rows::First() const {
    if (IsEmpty()) throw DatabaseError("No row of the record set is current");
    return (*this)[0];
}

}  // namespace tallix::ado

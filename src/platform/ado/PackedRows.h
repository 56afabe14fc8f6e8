#pragma once
// Many rows of values in little memory: one stretch of bytes, unpacked a row at a time. A search that finds
// a million documents must not cost the memory of a million rows of objects.

#include "common/Value.h"

#include <cstring>
#include <string>
#include <vector>

namespace varnik::ado {

class PackedRows {
public:
    std::size_t Size() const { return starts_.size(); }

    void Add(const std::vector<Value>& row) {
        starts_.push_back(bytes_.size());
        for (const Value& value : row) {
            if (value.IsNull()) {
                bytes_ += Null;
            } else if (value.IsBool()) {
                bytes_ += value.Bool() ? Yes : No;
            } else if (value.IsInteger()) {
                Put(Integer, value.Integer());
            } else if (value.IsDouble()) {
                Put(Double, value.Double());
            } else if (value.IsDate()) {
                Put(Date, value.Date());
            } else {
                Put(Text, value.Text().size());
                bytes_ += value.Text();
            }
        }
    }

    void Read(std::size_t index, std::vector<Value>& row) const {
        const char* at = bytes_.data() + starts_[index];
        for (Value& value : row) {
            switch (*at++) {
            case Null:
                value = Value();
                break;
            case No:
                value = false;
                break;
            case Yes:
                value = true;
                break;
            case Integer:
                value = Take<std::int64_t>(at);
                break;
            case Double:
                value = Take<double>(at);
                break;
            case Date:
                value = Take<DateTime>(at);
                break;
            default: {
                const auto size = Take<std::size_t>(at);
                value = std::string(at, size);
                at += size;
            }
            }
        }
    }

private:
    enum Kind : char { Null, No, Yes, Integer, Double, Date, Text };

    template <typename T>
    void Put(Kind kind, const T& value) {
        bytes_ += kind;
        bytes_.append(reinterpret_cast<const char*>(&value), sizeof value);
    }
    template <typename T>
    static T Take(const char*& at) {
        T value;
        std::memcpy(&value, at, sizeof value);
        at += sizeof value;
        return value;
    }

    std::string bytes_;
    std::vector<std::size_t> starts_;
};

} // namespace varnik::ado

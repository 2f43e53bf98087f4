// The interface between the sections, which read values, and the formats in which the values are exported.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <type_traits>

// A value. It refers to its string, which must stay valid until a writer has received the value.
struct Value {
    enum class Kind : uint8_t {
        Null,    // unknown
        Flag,    // `number` is 0 or 1
        Number,  // `number`
        Time,    // `number` is a time of the event log, as in time.h
        Word,    // `text` is a name that the shell prints; it is exported in lower case
        Text,    // `text` is a string of the firmware or the driver, which may contain any bytes
    };

    Value() = default;
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    Value(Number value)
        : kind(std::is_same_v<Number, bool> ? Kind::Flag : Kind::Number), number(int64_t{value}) {}
    template <typename Number>
    Value(const std::optional<Number>& value) : Value(value ? Value(*value) : Value()) {}
    Value(Kind a_kind, std::string_view a_text) : kind(a_kind), text(a_text) {}
    Value(Kind a_kind, int64_t a_number) : kind(a_kind), number(a_number) {}

    Kind kind = Kind::Null;
    int64_t number = 0;
    std::string_view text;
};

// Return a value of the kind Word or Text. Word() returns a null value for a null pointer.
inline Value Word(const char* word) {
    return word != nullptr ? Value(Value::Kind::Word, word) : Value();
}

inline Value Text(std::string_view text) {
    return {Value::Kind::Text, text};
}

// Receives the document value by value, like the callbacks of a JSON parser. The document is an object with
// the values of the whole run and a member for each section. A writer stores only the values that its format
// needs later, so the memory that it needs doesn't grow with the event log.
class Writer {
  public:
    virtual ~Writer() = default;

    // Inside an object, Key() precedes each value, object or list.
    virtual void Key(const char* key) = 0;
    virtual void Put(const Value& value) = 0;
    virtual void BeginObject() = 0;
    virtual void EndObject() = 0;
    virtual void BeginList() = 0;
    virtual void EndList() = 0;
    // Ends the document and writes what has not been written yet.
    virtual void Finish() = 0;

    // Returns the program's exit status, after Finish(). `complete` is true if everything could be read.
    virtual int Status(bool complete) const { return complete ? 0 : 1; }

    // Returns whether events need their texts. Translating an event takes longer than reading it.
    virtual bool NeedsEventTexts() const { return false; }

    void Add(const char* key, const Value& value) {
        Key(key);
        Put(value);
    }
};

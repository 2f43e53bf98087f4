// The only source that compiles the JSON library's writer.
#include "brantexport/json.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <algorithm>
#include <cstring>
#include <new>
#include <string>

#include "brantexport/output.h"
#include "brantexport/text.h"

namespace {

// Allocates memory for the JSON library and throws if there is none. With its own allocator, the library
// would use the null pointer.
struct Allocator {
    static void* Malloc(size_t size) { return Realloc(nullptr, 0, size); }
    static void* Realloc(void* old, size_t old_size, size_t size) {
        void* const block = size > 0 ? operator new(size) : nullptr;
        if (old != nullptr && block != nullptr) std::memcpy(block, old, std::min(old_size, size));
        operator delete(old);
        return block;
    }
    static void Free(void* block) { operator delete(block); }
    // NOLINTNEXTLINE(readability-identifier-naming): the library's name
    static const bool kNeedFree = true;
};

using Buffer = rapidjson::GenericStringBuffer<rapidjson::UTF8<>, Allocator>;

}  // namespace

// Writes the indentation of a line in one step, as the library's specialisation for its own allocator does.
template <>
inline void rapidjson::PutN(Buffer& stream, char c, size_t n) {
    std::memset(stream.Push(n), c, n);
}

namespace {

class JsonWriter : public Writer {
  public:
    explicit JsonWriter(int output) : output_(output) { json_.SetIndent(' ', 2); }

    void Key(const char* key) override { json_.Key(key); }
    void BeginObject() override { json_.StartObject(); }
    void BeginList() override { json_.StartArray(); }
    void EndList() override { json_.EndArray(); }
    bool NeedsEventTexts() const override { return true; }
    void Put(const Value& value) override;
    void EndObject() override;
    void Finish() override;

  private:
    void Write();

    int output_;
    Buffer buffer_;
    rapidjson::PrettyWriter<Buffer, rapidjson::UTF8<>, rapidjson::UTF8<>, Allocator> json_{buffer_};
    std::string converted_;  // the last string that was converted
};

void JsonWriter::Put(const Value& value) {
    switch (value.kind) {
        case Value::Kind::Null: json_.Null(); return;
        case Value::Kind::Flag: json_.Bool(value.number != 0); return;
        case Value::Kind::Number: json_.Int64(value.number); return;
        default: break;
    }
    const std::string_view text = Utf8(value, converted_);
    json_.String(text.data(), static_cast<rapidjson::SizeType>(text.size()));
}

void JsonWriter::EndObject() {
    constexpr size_t kFullBuffer = 16384;
    json_.EndObject();
    if (buffer_.GetSize() >= kFullBuffer) Write();
}

void JsonWriter::Finish() {
    buffer_.Put('\n');
    Write();
}

void JsonWriter::Write() {
    WriteOutput(output_, {buffer_.GetString(), buffer_.GetSize()});
    buffer_.Clear();
}

}  // namespace

std::unique_ptr<Writer> NewJsonWriter(int output) {
    return std::make_unique<JsonWriter>(output);
}

#include "brantexport/entries.h"

#include <cstring>

#include "brantexport/text.h"

namespace {

bool HasText(Value::Kind kind) {
    return kind == Value::Kind::Word || kind == Value::Kind::Text;
}

}  // namespace

Value Entry::operator[](const char* key) const {
    for (const Member* member = members_; member != members_ + count_; ++member) {
        if (std::strcmp(member->key, key) != 0) continue;
        Value value(member->kind, member->number);
        if (HasText(member->kind)) value.text = member->text;
        return value;
    }
    return {};
}

void EntryWriter::Put(const Value& value) {
    if (!levels_.back().is_list) {
        AddMember(key_, value);
        return;
    }
    const size_t first = count_;
    AddMember("position", ++levels_.back().elements);
    AddMember("name", value);
    Take(path_, Entry(&members_[first], count_ - first));
    count_ = first;
}

void EntryWriter::EndObject() {
    const size_t first = levels_.back().first_member;
    Take(path_, Entry(members_.data() + first, count_ - first));
    Close();
}

void EntryWriter::Open(bool is_list) {
    const size_t path_size = path_.size();
    if (!levels_.empty() && !levels_.back().is_list) {
        if (!path_.empty()) path_ += '.';
        path_ += key_;
    }
    levels_.push_back({path_size, count_, is_list, 0});
}

void EntryWriter::Close() {
    path_.resize(levels_.back().path_size);
    count_ = levels_.back().first_member;
    levels_.pop_back();
}

void EntryWriter::AddMember(const char* key, const Value& value) {
    if (count_ == members_.size()) members_.emplace_back();
    Entry::Member& member = members_[count_++];
    member.key = key;
    member.kind = value.kind;
    member.number = value.number;
    if (value.kind == Value::Kind::Word) {
        AssignLowerCase(value.text, member.text);
    } else if (HasText(value.kind)) {
        member.text.assign(value.text);
    }
}

// The base of the writers that select and combine values. It collects the members of each object into an
// entry.
#pragma once

#include <string>
#include <vector>

#include "brantexport/writer.h"

// An entry: the members of one object, such as a fan.
class Entry {
  public:
    struct Member {
        const char* key;
        Value::Kind kind;
        int64_t number;
        std::string text;  // a Word in lower case, or a Text; unused for other kinds
    };

    Entry(const Member* members, size_t count) : members_(members), count_(count) {}
    // Returns the value of a member, or null if there is no such member. The value is valid as long as the
    // entry.
    Value operator[](const char* key) const;

  private:
    const Member* members_;
    size_t count_;
};

class EntryWriter : public Writer {
  public:
    void Key(const char* key) final { key_ = key; }
    void Put(const Value& value) final;
    void BeginObject() final { Open(false); }
    void EndObject() final;
    void BeginList() final { Open(true); }
    void EndList() final { Close(); }

  protected:
    // Receives an entry. `path` consists of the keys that lead to it: "fans" for each fan,
    // "processors.caches" for each cache of each processor, and "" for the document itself. The members of an
    // entry are the scalar values of the object, without nested objects and lists. A scalar element of a list
    // is an entry with the members "position", from 1, and "name".
    virtual void Take(std::string_view path, const Entry& entry) = 0;

  private:
    // An object or list that hasn't ended yet.
    struct Level {
        size_t path_size;     // size of path_ for the level that contains this one
        size_t first_member;  // index of the object's first member in members_
        bool is_list;
        int elements;  // number of scalar elements of a list so far
    };

    void Open(bool is_list);
    void Close();
    void AddMember(const char* key, const Value& value);

    const char* key_ = nullptr;
    std::string path_;
    std::vector<Level> levels_;
    std::vector<Entry::Member> members_;  // the first `count_` are in use; the others keep their memory
    size_t count_ = 0;
};

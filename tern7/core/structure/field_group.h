#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/corekit/strings.h>
#include <tern7/core/structure/lookup.h>

namespace tern7 {

class TDSField;
class TKCustomDBStructure;

/// An ordered list of references to fields.
class TDSFieldList {
public:
    virtual ~TDSFieldList() = default;

    int GetCount() const { return static_cast<int>(fields.size()); }
    TDSField* GetItem(int index) const { return fields.at(static_cast<size_t>(index)); }
    virtual void SetItem(int index, TDSField* field) {
        fields.at(static_cast<size_t>(index)) = field;
    }
    virtual void Add(TDSField* field) { fields.push_back(field); }
    /// Inserts before the position; std::out_of_range outside 0..count.
    virtual void Insert(int index, TDSField* field);
    virtual void Delete(int index);
    virtual void Clear() { fields.clear(); }
    /// Position by identity, -1 when absent.
    int IndexOf(const TDSField* field) const;
    const std::vector<TDSField*>& Items() const { return fields; }

protected:
    std::vector<TDSField*> fields;
};

/// A named group of fields, or the root group (without a name), which holds the fields of no other.
/// Every field of a structure stands in exactly one: adding it takes it out of its former one,
/// whatever leaves a group, also by the end of the group, moves to the end of the root group.
class TDSFieldGroup : public TDSFieldList {
public:
    explicit TDSFieldGroup(TKCustomDBStructure& owner) : structure(owner) {}
    ~TDSFieldGroup() override;
    TDSFieldGroup(const TDSFieldGroup&) = delete;
    TDSFieldGroup& operator=(const TDSFieldGroup&) = delete;

    const std::string& GroupName() const { return groupName; }
    void SetGroupName(std::string value);
    /// The field that stood there goes to the root group.
    void SetItem(int index, TDSField* field) override;
    void Add(TDSField* field) override;
    /// The position is that in the list without the field.
    void Insert(int index, TDSField* field) override;
    void Delete(int index) override;
    void Clear() override;

private:
    friend class TKCustomDBStructure;
    friend class TDSField;
    friend class TDSFieldGroupList;
    friend class TKStructureReader;
    bool IsRoot() const;
    void Place(int index, TDSField* field);
    void EmptyIntoRoot();

    TKCustomDBStructure& structure;
    std::string groupName;
};

/// The groups of a structure, in the order in which they are offered.
class TDSFieldGroupList : public TKObjectList<TDSFieldGroup> {
public:
    explicit TDSFieldGroupList(TKCustomDBStructure& owner) : structure(owner) {}

    /// Adds the field to the group of that name, which is made when it is missing; no field: only
    /// makes the group.
    TDSFieldGroup* AddGroup(std::string_view name, TDSField* field);
    /// Without regard to case; none when absent.
    TDSFieldGroup* FindByName(std::string_view name) const;
    /// The group that holds the field and its position there; none for the root group.
    TDSFieldGroup* FindByField(const TDSField* field, int& index) const;
    void GetGroupNames(TStrings& list) const;
    /// Deletes a group; its fields go to the end of the root group in their order.
    void DeleteGroup(int index);
    void Delete(int index) { DeleteGroup(index); }
    void Clear();

protected:
    void Changed() override;

private:
    friend class TDSFieldGroup;
    friend class TKCustomDBStructure;
    TKCustomDBStructure& structure;
    mutable TDSLookup<TDSFieldGroup> names;
    bool appending = false; // Changed() need not drop the lookup
};

} // namespace tern7

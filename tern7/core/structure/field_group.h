#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <tern7/core/corekit/object_list.h>
#include <tern7/core/corekit/strings.h>

namespace tern7 {

class TDSField;
class TKCustomDBStructure;

/// An ordered list of references to fields.
class TDSFieldList {
public:
    virtual ~TDSFieldList() = default;

    int GetCount() const { return static_cast<int>(fields.size()); }
    TDSField* GetItem(int index) const { return fields.at(static_cast<size_t>(index)); }
    void SetItem(int index, TDSField* field) { fields.at(static_cast<size_t>(index)) = field; }
    virtual void Add(TDSField* field) { fields.push_back(field); }
    virtual void Insert(int index, TDSField* field) {
        fields.insert(fields.begin() + index, field);
    }
    virtual void Delete(int index) { fields.erase(fields.begin() + index); }
    void Clear() { fields.clear(); }
    /// Position by identity, -1 when absent.
    int IndexOf(const TDSField* field) const;
    const std::vector<TDSField*>& Items() const { return fields; }

protected:
    std::vector<TDSField*> fields;
};

/// A named group of fields. A field stands in one group or in the root group: adding it takes it
/// out of its former one, deleting it moves it to the end of the root group.
class TDSFieldGroup : public TDSFieldList {
public:
    explicit TDSFieldGroup(TKCustomDBStructure& owner) : structure(owner) {}

    const std::string& GroupName() const { return groupName; }
    void SetGroupName(std::string value);
    void Add(TDSField* field) override;
    void Insert(int index, TDSField* field) override;
    void Delete(int index) override;

private:
    friend class TKCustomDBStructure;
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
    void GetGroupNames(TStrings& names) const;
    /// Deletes a group; its fields go to the end of the root group in their order.
    void DeleteGroup(int index);

protected:
    void Changed() override;

private:
    TKCustomDBStructure& structure;
};

} // namespace tern7

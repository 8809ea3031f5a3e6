#pragma once
// A track's medias seen as the kind that the track admits, without a second store.
#include <ZelmarMediaLib/datatypes/BoostNames.h>

#include <cstddef>
#include <iterator>
#include <map>
#include <utility>

namespace ZelmarMediaLib {

class Media;

// The track keeps one map of Media for all its code; only the dispatch lets medias in, so
// every entry is a T and the downcast is sound. A read-only view: all changes go through
// the track, which keeps the no-overlap rule.
template <class T>
class TypedMediaMap {
public:
    typedef std::map<long long, shared_ptr<Media const> > Store;
    typedef std::pair<long long, shared_ptr<T const> > value_type;

    // Each dereference rebuilds the entry inside the iterator, so a reference to it is good
    // until the iterator moves. For that reason there is no reverse form:
    // std::reverse_iterator would hand out references into a temporary.
    class const_iterator {
    public:
        typedef std::bidirectional_iterator_tag iterator_category;
        typedef TypedMediaMap::value_type value_type;
        typedef std::ptrdiff_t difference_type;
        typedef value_type const* pointer;
        typedef value_type const& reference;

        const_iterator() = default;
        explicit const_iterator(typename Store::const_iterator position) : position_(position) {}

        reference operator*() const {
            entry_.first = position_->first;
            entry_.second = static_pointer_cast<T const>(position_->second);
            return entry_;
        }
        pointer operator->() const { return &**this; }

        const_iterator& operator++() {
            ++position_;
            return *this;
        }
        const_iterator operator++(int) {
            const_iterator before(*this);
            ++position_;
            return before;
        }
        const_iterator& operator--() {
            --position_;
            return *this;
        }
        const_iterator operator--(int) {
            const_iterator before(*this);
            --position_;
            return before;
        }

        bool operator==(const_iterator const& other) const { return position_ == other.position_; }
        bool operator!=(const_iterator const& other) const { return position_ != other.position_; }

        typename Store::const_iterator base() const { return position_; }

    private:
        typename Store::const_iterator position_;
        mutable value_type entry_;
    };
    typedef const_iterator iterator;

    explicit TypedMediaMap(Store const& store) : store_(&store) {}

    const_iterator begin() const { return const_iterator(store_->begin()); }
    const_iterator end() const { return const_iterator(store_->end()); }
    const_iterator find(long long start) const { return const_iterator(store_->find(start)); }
    const_iterator lower_bound(long long start) const { return const_iterator(store_->lower_bound(start)); }
    const_iterator upper_bound(long long start) const { return const_iterator(store_->upper_bound(start)); }
    std::size_t size() const { return store_->size(); }
    bool empty() const { return store_->empty(); }

private:
    Store const* store_;
};

}  // namespace ZelmarMediaLib

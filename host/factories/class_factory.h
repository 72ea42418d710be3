// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <map>
#include <memory>

/// Raised when a factory is asked for something that nobody registered.
class not_registered : public std::exception
{
public:
    const char* what() const noexcept override { return "Class/key not registered"; }
};

/// Makes objects of classes that are known by a key.
template <class Base, class Key>
class class_factory
{
public:
    using Creator = std::function<std::unique_ptr<Base>()>;

    /// Takes the place of an earlier creator for the key.
    void registerClass(const Key& key, Creator creator) { _creators[key] = std::move(creator); }

    /// What the creator gives, which may be null. Throws not_registered for an unknown key.
    std::unique_ptr<Base> create(const Key& key) const
    {
        const auto it = _creators.find(key);
        if (it == _creators.end())
            throw not_registered();
        return it->second();
    }

private:
    std::map<Key, Creator> _creators;
};

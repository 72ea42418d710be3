// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>

/// Names that callers may write in place of the namespace.
#define OSG osg
#define OSG_BEGIN_NAMESPACE namespace osg {
#define OSG_END_NAMESPACE }
#define OSG_USING_NAMESPACE using namespace osg;

/// Marks what a shared library offers while everything else in it stays hidden.
#define OSG_CORE_API __attribute__((visibility("default")))

/// The scalar types that every interface of the library is written in.
namespace osg {

typedef char Char8;
typedef std::int8_t Int8;
typedef std::uint8_t UInt8;
typedef std::int16_t Int16;
typedef std::uint16_t UInt16;
typedef std::int32_t Int32;
typedef std::uint32_t UInt32;
typedef std::int64_t Int64;
typedef std::uint64_t UInt64;
typedef float Real32;
typedef double Real64;

/// A set of fields of one container, a bit each.
typedef UInt64 BitVector;

} // namespace osg

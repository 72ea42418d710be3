// SPDX-License-Identifier: MIT
#include <OpenSG/OSGBaseFunctions.h>
#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGKeyTransform.h>
#include <OpenSG/OSGSimpleAttachments.h>

#include <QTest>

#include <concepts>
#include <functional>
#include <type_traits>

using namespace osg;

namespace {

template <class T>
concept Hashable = requires(T value)
{
    std::hash<T>()(value);
};
template <class A, class B>
concept ChainAssignable = requires(A a, A b, B c)
{
    a = b = c;
};
template <class T>
concept ChildrenReadable = requires(T node)
{
    node.getChild(0);
};
template <class T>
concept ParentReadable = requires(T node)
{
    node.getParent();
};
template <class T>
concept CoreReadable = requires(T node)
{
    node.getCore();
};
template <class A, class B>
concept Comparable = requires(const A a, const B b)
{
    {
        a == b
        } -> std::convertible_to<bool>;
    {
        a != b
        } -> std::convertible_to<bool>;
    {
        b == a
        } -> std::convertible_to<bool>;
};
template <class A, class B>
concept Ordered = requires(const A a, const B b)
{
    {
        a < b
        } -> std::convertible_to<bool>;
};
template <class T>
concept Conditional = requires(const T p)
{
    p ? 1 : 0;
};
template <class T>
concept Negatable = requires(const T p)
{
    {
        !p
        } -> std::same_as<bool>;
};
template <class T>
concept Deletable = requires(T* p)
{
    delete p;
};
template <class T>
concept Creatable = requires
{
    T::create();
};

} // namespace

/// What code may write and what it may not. The compiler is the test; each group holds one thing
/// that is allowed against the thing beside it that is not.
class tst_strictness : public QObject
{
    Q_OBJECT

private slots:
    void null_is_assigned_as_null_fc_only()
    {
        static_assert(std::is_assignable_v<NodePtr&, NullFieldContainerPtr>);
        static_assert(!std::is_assignable_v<NodePtr&, std::nullptr_t>);
        static_assert(!std::is_assignable_v<NodePtr&, int>);
        static_assert(!std::is_assignable_v<NodePtr&, Node*>);
        static_assert(std::is_convertible_v<NullFieldContainerPtr, GeometryPtr>);
        static_assert(!std::is_convertible_v<std::nullptr_t, NodePtr>);
        static_assert(!std::is_convertible_v<std::nullptr_t, FieldContainerPtr>);
    }

    void null_is_compared_in_every_way()
    {
        static_assert(Comparable<NodePtr, std::nullptr_t>);
        static_assert(Comparable<NodePtr, NullFieldContainerPtr>);
        static_assert(Comparable<GeometryPtr, NullFieldContainerPtr>);
        static_assert(Conditional<NodePtr> && Negatable<NodePtr>);
        static_assert(!Comparable<NodePtr, Node*>);
    }

    void pointers_are_no_numbers()
    {
        static_assert(!std::is_convertible_v<NodePtr, bool>);
        static_assert(!std::is_convertible_v<NodePtr, int>);
        static_assert(!std::is_convertible_v<NodePtr, Node*>);
        static_assert(!std::is_convertible_v<NodePtr, const void*>);
    }

    void upcasts_are_implicit_and_downcasts_are_not()
    {
        static_assert(std::is_convertible_v<KeyTransformPtr, TransformPtr>);
        static_assert(std::is_convertible_v<TransformPtr, GroupPtr>);
        static_assert(std::is_convertible_v<GroupPtr, NodeCorePtr>);
        static_assert(std::is_convertible_v<GeometryPtr, MaterialDrawablePtr>);
        static_assert(std::is_convertible_v<MaterialDrawablePtr, DrawablePtr>);
        static_assert(std::is_convertible_v<DrawablePtr, NodeCorePtr>);
        static_assert(std::is_convertible_v<NodeCorePtr, AttachmentContainerPtr>);
        static_assert(std::is_convertible_v<NodePtr, AttachmentContainerPtr>);
        static_assert(std::is_convertible_v<AttachmentContainerPtr, FieldContainerPtr>);
        static_assert(!std::is_constructible_v<GroupPtr, NodeCorePtr>);
        static_assert(!std::is_constructible_v<KeyTransformPtr, TransformPtr>);
        static_assert(!std::is_constructible_v<NodePtr, FieldContainerPtr>);
        static_assert(!std::is_constructible_v<NodePtr, NodeCorePtr>);
        static_assert(!std::is_constructible_v<GroupPtr, GeometryPtr>);
        static_assert(!std::is_assignable_v<GroupPtr&, NodeCorePtr>);
        static_assert(std::is_assignable_v<NodeCorePtr&, GroupPtr>);
    }

    void assignments_have_no_value()
    {
        static_assert(std::is_void_v<decltype(std::declval<NodePtr&>() = NodePtr())>);
        static_assert(!ChainAssignable<NodePtr, NodePtr>);
        static_assert(!ChainAssignable<NodePtr, NullFieldContainerPtr>);
        static_assert(!ChainAssignable<FieldContainerPtr, NodePtr>);
        static_assert(ChainAssignable<int, int>);
    }

    void pointers_are_made_of_plain_ones_explicitly()
    {
        static_assert(std::is_constructible_v<NodePtr, const Node*>);
        static_assert(std::is_constructible_v<NodePtr, Node*>);
        static_assert(!std::is_convertible_v<const Node*, NodePtr>);
        static_assert(!std::is_convertible_v<Node*, NodePtr>);
        static_assert(!std::is_constructible_v<NodePtr, FieldContainer*>);
    }

    void pointers_give_targets_that_can_be_changed()
    {
        typedef const NodePtr Pointer;
        static_assert(std::is_same_v<decltype(std::declval<Pointer>().getCPtr()), Node*>);
        static_assert(std::is_same_v<decltype(std::declval<Pointer>().operator->()), Node*>);
        static_assert(std::is_same_v<decltype(*std::declval<Pointer>()), Node&>);
    }

    void pointers_are_small_values()
    {
        static_assert(sizeof(NodePtr) == sizeof(void*));
        static_assert(std::is_trivially_copy_constructible_v<NodePtr>);
        static_assert(std::is_trivially_destructible_v<NodePtr>);
    }

    void pointers_of_different_types_compare()
    {
        static_assert(Comparable<NodePtr, NodeCorePtr> && Ordered<NodePtr, NodeCorePtr>);
        static_assert(Comparable<GroupPtr, GeometryPtr> && Ordered<GroupPtr, GeometryPtr>);
    }

    void pointers_have_no_hash()
    {
        static_assert(!Hashable<NodePtr>);
        static_assert(!Hashable<FieldContainerPtr>);
        static_assert(Hashable<Node*>);
    }

    void a_constant_node_shows_its_core_only()
    {
        static_assert(!ChildrenReadable<const Node&> && ChildrenReadable<Node&>);
        static_assert(!ParentReadable<const Node&> && ParentReadable<Node&>);
        static_assert(CoreReadable<const Node&>);
    }

    void ref_ptrs_are_made_explicitly()
    {
        static_assert(std::is_constructible_v<NodeRefPtr, NodePtr>);
        static_assert(!std::is_convertible_v<NodePtr, NodeRefPtr>);
        static_assert(std::is_convertible_v<NodeRefPtr, NodePtr>);
        static_assert(!std::is_convertible_v<NodeCoreRefPtr, GroupPtr>);
        static_assert(std::is_convertible_v<KeyTransformRefPtr, KeyTransformPtr>);
        static_assert(std::is_convertible_v<TransformRefPtr, NodeCorePtr>);
        static_assert(std::is_convertible_v<GroupRefPtr, NodeCorePtr>);
        static_assert(std::is_convertible_v<GeometryRefPtr, DrawablePtr>);
        static_assert(!std::is_assignable_v<NodeRefPtr&, std::nullptr_t>);
    }

    void containers_live_by_their_references()
    {
        static_assert(!std::is_default_constructible_v<Node>);
        static_assert(!std::is_copy_constructible_v<Node>);
        static_assert(!std::is_copy_assignable_v<Node>);
        static_assert(!Deletable<Node> && !Deletable<Group> && !Deletable<GeoPositions3f>);
        static_assert(Creatable<Node> && Creatable<KeyTransform> && Creatable<Geometry>);
        static_assert(!Creatable<NodeCore> && !Creatable<Drawable>);
        static_assert(!Creatable<MaterialDrawable> && !Creatable<GeoPositions>);
    }

    void types_are_found_without_an_instance()
    {
        static_assert(std::is_same_v<decltype(Node::getClassType()), FieldContainerType&>);
        static_assert(!std::is_copy_constructible_v<FieldContainerType>);
    }
};

QTEST_APPLESS_MAIN(tst_strictness)
#include "tst_strictness.moc"

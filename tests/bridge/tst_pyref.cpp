// SPDX-License-Identifier: GPL-2.0-or-later
#include "RecordingPython.h"

#include "ChildProcess.h"

#include <QtTest>

#include <memory>
#include <optional>
#include <type_traits>

class TestPyRef : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(python.initialize()); }
    void init() { lock.emplace(true); }
    void cleanup() { lock.reset(); }

    void canBeMovedButNotCopied();
    void emptyOneAnswersFalseAndNull();
    void stealTakesOverTheCount();
    void borrowAddsOne();
    void nullGivesAnEmptyOne();
    void releaseHandsTheCountOver();
    void resetGivesUpOnceOnly();
    void moveLeavesTheSourceEmpty();
    void assignmentDropsTheOldObject();
    void assignmentToItselfKeepsTheObject();
    void objectSeesAnEmptyOwnerInItsDestructor();
    void changeOfACountWithoutTheLockIsAsserted();
    void outlivingTheInterpreterIsAsserted();

private:
    RecordingPython python;
    std::optional<Python::PyGILStateWrapper> lock;
};

void TestPyRef::canBeMovedButNotCopied()
{
    static_assert(!std::is_copy_constructible_v<PyRef> && !std::is_copy_assignable_v<PyRef>);
    static_assert(std::is_nothrow_move_constructible_v<PyRef> && std::is_nothrow_move_assignable_v<PyRef>);
    static_assert(sizeof(PyRef) == sizeof(PyObject*));
    static_assert(!std::is_convertible_v<PyRef, bool> && !std::is_convertible_v<PyObject*, PyRef>);
}

void TestPyRef::emptyOneAnswersFalseAndNull()
{
    PyRef const empty;
    QVERIFY(!empty);
    QCOMPARE(empty.get(), nullptr);
}

void TestPyRef::stealTakesOverTheCount()
{
    PyRef const list = PyRef::steal(PyList_New(0));
    QVERIFY(list);
    QCOMPARE(referencesTo(list.get()), 1);
}

void TestPyRef::borrowAddsOne()
{
    PyRef const list = PyRef::steal(PyList_New(0));
    {
        PyRef const second = PyRef::borrow(list.get());
        QCOMPARE(second.get(), list.get());
        QCOMPARE(referencesTo(list.get()), 2);
    }
    QCOMPARE(referencesTo(list.get()), 1);
}

void TestPyRef::nullGivesAnEmptyOne()
{
    QVERIFY(!PyRef::steal(nullptr));
    QVERIFY(!PyRef::borrow(nullptr));
}

void TestPyRef::releaseHandsTheCountOver()
{
    PyRef list = PyRef::steal(PyList_New(0));
    PyObject* const object = list.release();
    QVERIFY(!list);
    QCOMPARE(referencesTo(object), 1);
    PyRef const again = PyRef::steal(object);
}

void TestPyRef::resetGivesUpOnceOnly()
{
    PyRef const list = PyRef::steal(PyList_New(0));
    PyRef second = PyRef::borrow(list.get());
    second.reset();
    QVERIFY(!second);
    QCOMPARE(referencesTo(list.get()), 1);
    second.reset();
    QCOMPARE(referencesTo(list.get()), 1);
}

void TestPyRef::moveLeavesTheSourceEmpty()
{
    PyRef first = PyRef::steal(PyList_New(0));
    PyObject* const object = first.get();
    PyRef const second = std::move(first);
    QVERIFY(!first); // NOLINT(bugprone-use-after-move)
    QCOMPARE(second.get(), object);
    QCOMPARE(referencesTo(object), 1);
}

void TestPyRef::assignmentDropsTheOldObject()
{
    PyRef const old = PyRef::steal(PyList_New(0));
    PyRef holder = PyRef::borrow(old.get());
    PyRef next = PyRef::steal(PyList_New(0));
    PyObject* const object = next.get();
    holder = std::move(next);
    QCOMPARE(holder.get(), object);
    QCOMPARE(referencesTo(object), 1);
    QCOMPARE(referencesTo(old.get()), 1);
}

void TestPyRef::assignmentToItselfKeepsTheObject()
{
    PyRef list = PyRef::steal(PyList_New(0));
    PyRef& same = list;
    list = std::move(same);
    QVERIFY(list);
    QCOMPARE(referencesTo(list.get()), 1);
}

void TestPyRef::objectSeesAnEmptyOwnerInItsDestructor()
{
    static PyRef holder;
    static bool empty = false;
    holder = PyRef::steal(PyCapsule_New(&empty, nullptr, [](PyObject*) { empty = !holder; }));
    holder.reset();
    QVERIFY(empty);
}

void TestPyRef::changeOfACountWithoutTheLockIsAsserted()
{
#ifdef QT_NO_DEBUG
    QSKIP("assertions are off in this build");
#endif
    int const status = statusOfChild([this] {
        PyRef list = PyRef::steal(PyList_New(0));
        lock->release();
        list.reset();
        return 0;
    });
    QVERIFY(endedByAbort(status));
}

void TestPyRef::outlivingTheInterpreterIsAsserted()
{
#ifdef QT_NO_DEBUG
    QSKIP("assertions are off in this build");
#endif
    int const status = statusOfChild([] {
        PyRef list = PyRef::steal(PyList_New(0));
        Py_FinalizeEx();
        list.reset();
        return 0;
    });
    QVERIFY(endedByAbort(status));
}

QTEST_GUILESS_MAIN(TestPyRef)
#include "tst_pyref.moc"

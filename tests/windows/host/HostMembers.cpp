#include "tests/windows/host/HostMembers.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <set>

#include "runtime/RuntimeError.h"
#include "runtime/Strings.h"
#include "runtime/Utf8Path.h"
#include "windows/com/Failures.h"
#include "xlsx/Workbook.h"
#include "xlsx/package/PackageError.h"

namespace plotsmith::automation {
namespace {

using runtime::RuntimeError;

/// Converts errors in reading and writing files to Excel's errors.
template <class Work>
void OnFiles(const Work& work) {
  try {
    work();
  } catch (const xlsx::PackageError& e) {
    throw RuntimeError(runtime::error::kApplication, e.what());
  }
}

/// Open(path): opens a workbook, and begins its journal.
com::OwnedVariant Open(excel::Application&, const Arguments& arguments, const HostPtr& host) {
  host->path = Given<std::string>(arguments[0]);
  host->journal.clear();
  OnFiles([&] { host->application->Open(host->path); });
  host->application->Journal().SetSink([weak = std::weak_ptr(host)](std::string_view line) {
    if (const HostPtr open = weak.lock()) open->journal.append(line) += '\n';
  });
  return {};
}

/// Save(): saves the workbook if it was changed, like the command.
com::OwnedVariant Save(excel::Application&, const Arguments&, const HostPtr& host) {
  OnFiles([&] {
    if (host->application->Book().Changed()) host->application->Book().Save(host->path);
  });
  return {};
}

/// SaveAs(path)
com::OwnedVariant SaveAs(excel::Application&, const Arguments& arguments, const HostPtr& host) {
  OnFiles([&] { host->application->Book().Save(Given<std::string>(arguments[0])); });
  return {};
}

/// Journal: the changes since the workbook was opened, one per line.
com::OwnedVariant Journal(excel::Application&, const Arguments&, const HostPtr& host) {
  return com::ToVariant(host->journal);
}

/// SaveJournal(path): writes the journal to a file in UTF-8.
com::OwnedVariant SaveJournal(excel::Application&, const Arguments& arguments, const HostPtr& host) {
  std::ofstream file(runtime::PathOf(Given<std::string>(arguments[0])), std::ios::binary);
  if (!(file << host->journal << std::flush)) {
    throw RuntimeError(runtime::error::kApplication, "The journal can't be written.");
  }
  return {};
}

/// DefineMacro(name, function): defines a macro for Run, such as a function of the script, which gets the
/// arguments of Run.
com::OwnedVariant DefineMacro(excel::Application&, const Arguments& arguments, const HostPtr& host) {
  const auto name = Given<std::string>(arguments[0]);
  host->macros[name] = com::ObjectOf(arguments[1]);
  host->application->DefineMacro(name, [weak = std::weak_ptr(host), name](const auto& given) {
    const HostPtr open = weak.lock();
    if (!open) return;
    std::vector<com::OwnedVariant> owned;
    for (auto argument = given.rbegin(); argument != given.rend(); ++argument) {
      owned.push_back(com::ToVariant(*argument));
    }
    std::vector<VARIANT> passed;
    for (const auto& argument : owned) passed.push_back(argument.Get());
    DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
    EXCEPINFO exception{};
    const auto macro = open->macros[name];
    const HRESULT result =
        macro->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, &exception, nullptr);
    if (result == DISP_E_EXCEPTION) throw com::ErrorOf(exception);
    if (FAILED(result)) throw com::ErrorOf(result);
  });
  return {};
}

/// Editing: if True, the host behaves as if a cell was being edited.
com::OwnedVariant SetEditing(excel::Application&, const Arguments& arguments, const HostPtr& host) {
  host->editing = Given<bool>(arguments[0]);
  return {};
}

/// Calls: the number of calls to all objects of this library. UnsureCalls: the number of calls that asked for
/// a property and a method at once.
com::OwnedVariant Calls(excel::Application&, const Arguments&, const HostPtr&) {
  return com::ToVariant(counts.calls.load());
}
com::OwnedVariant UnsureCalls(excel::Application&, const Arguments&, const HostPtr&) {
  return com::ToVariant(counts.unsure.load());
}

/// WaysCalled: the ways in which Excel's members have been called, such as "Series.Values read", one per
/// line.
com::OwnedVariant WaysCalled(excel::Application&, const Arguments&, const HostPtr&) {
  const std::vector<std::string> notCalled = WaysNotCalled();
  std::string lines;
  std::set<std::string> listed(notCalled.begin(), notCalled.end());
  for (const std::string& way : AllWays()) {
    if (listed.insert(way).second) lines += way + "\n";
  }
  return com::ToVariant(lines);
}

/// SetFault(way, fault, callback): makes a way to call a member return results that Excel never returns; see
/// FaultyResult.
com::OwnedVariant SetFault(excel::Application&, const Arguments& arguments, const HostPtr& host) {
  host->faultyWay = Given<std::string>(arguments[0]);
  host->fault = Given<std::string>(arguments[1]);
  host->callback = com::IsMissing(arguments[2]) ? nullptr : com::ObjectOf(arguments[2]);
  return {};
}

/// LiveObjects: the number of this library's objects with references.
com::OwnedVariant LiveObjects(excel::Application&, const Arguments&, const HostPtr&) {
  return com::ToVariant(counts.objects.load());
}

/// The ways that are listed.
enum class Which { kAll, kNotCalled };

template <class T>
void ListWays(Which which, std::vector<std::string>& list) {
  const Table<T>& table = TableOf<T>();
  for (const auto& way : table.Ways()) {
    if (which == Which::kAll || !way.called) list.push_back(table.NameOf(way));
  }
}

/// The members for scripts.
constexpr std::array kHostMembers = {"Open",        "Save",        "SaveAs",      "Journal",
                                     "SaveJournal", "SetFault",    "DefineMacro", "Editing",
                                     "Calls",       "UnsureCalls", "LiveObjects", "WaysCalled"};

std::vector<std::string> Ways(Which which) {
  std::vector<std::string> list;
#define CLASS_NAME(Class) ListWays<excel::Class>(which, list);
#include "windows/excel/members/Classes.inc"
#undef CLASS_NAME
  std::erase_if(list, [](const std::string& way) {
    return std::any_of(kHostMembers.begin(), kHostMembers.end(),
                       [&](const std::string& name) { return way.starts_with("Application." + name + " "); });
  });
  return list;
}

}  // namespace

std::vector<std::string> AllWays() { return Ways(Which::kAll); }
std::vector<std::string> WaysNotCalled() { return Ways(Which::kNotCalled); }

void AddHostMembers(Table<excel::Application>& table) {
  table.Add({L"Open", DISPATCH_METHOD, 1, 1, nullptr, Open});
  table.Add({L"Save", DISPATCH_METHOD, 0, 0, nullptr, Save});
  table.Add({L"SaveAs", DISPATCH_METHOD, 1, 1, nullptr, SaveAs});
  table.Add({L"Journal", DISPATCH_PROPERTYGET, 0, 0, nullptr, Journal});
  table.Add({L"SaveJournal", DISPATCH_METHOD, 1, 1, nullptr, SaveJournal});
  table.Add({L"DefineMacro", DISPATCH_METHOD, 2, 2, nullptr, DefineMacro});
  table.Add({L"Editing", DISPATCH_PROPERTYPUT, 1, 1, nullptr, SetEditing});
  table.Add({L"Calls", DISPATCH_PROPERTYGET, 0, 0, nullptr, Calls});
  table.Add({L"UnsureCalls", DISPATCH_PROPERTYGET, 0, 0, nullptr, UnsureCalls});
  table.Add({L"WaysCalled", DISPATCH_PROPERTYGET, 0, 0, nullptr, WaysCalled});
  table.Add({L"SetFault", DISPATCH_METHOD, 2, 3, nullptr, SetFault});
  table.Add({L"LiveObjects", DISPATCH_PROPERTYGET, 0, 0, nullptr, LiveObjects});
}

IDispatch* NewApplication(HostPtr host) {
  const Ref<excel::Application> application(host->application);
  return new ComObject<excel::Application>(application, std::move(host));
}

}  // namespace plotsmith::automation

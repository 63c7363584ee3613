// Expands the lines of the tables in src/windows/excel/members/ to ways into the embedded host. README.md
// there explains them. For source files in the namespace plotsmith::automation.

// clang-format off
#define CLASS(Class)                                   \
  template <>                                          \
  const Table<excel::Class>& TableOf<excel::Class>() { \
    using Object = excel::Class;                       \
    static const Table<Object> table = [] {            \
      Table<Object> made(#Class);
#define END(Class) \
      return made; \
    }();           \
    return table;  \
  }
// The function AddWays of the class adds the others.
#define END_PARTLY(Class) \
      AddWays(made);      \
  END(Class)
// clang-format on

#define WAY(Name, Kind, Count, Accepts, ...)                                                 \
  made.Add({L"" #Name, Kind, Count, Count, Accepts,                                          \
            []([[maybe_unused]] Object& object, [[maybe_unused]] const Arguments& arguments, \
               [[maybe_unused]] const HostPtr& host) -> com::OwnedVariant { __VA_ARGS__ }});
#define ANSWERS(Type, Expression) return Answered<Type>([&] { return Expression; }, host);
#define MEANT(Argument) [](const Arguments& given) { return IsMeantAs<Argument>(given[0]); }

#define GET(Type, Name) WAY(Name, DISPATCH_PROPERTYGET, 0, nullptr, ANSWERS(Type, object.Name()))
#define GET1(Type, Name, Argument)                    \
  WAY(Name, DISPATCH_PROPERTYGET, 1, MEANT(Argument), \
      ANSWERS(Type, object.Name(Given<Argument>(arguments[0]))))
#define GET2(Type, Name, First, Second)       \
  WAY(Name, DISPATCH_PROPERTYGET, 2, nullptr, \
      ANSWERS(Type, object.Name(Given<First>(arguments[0]), Given<Second>(arguments[1]))))
#define PUT(Type, Name) \
  WAY(Name, DISPATCH_PROPERTYPUT, 1, nullptr, object.Set##Name(Given<Type>(arguments[0])); return {};)
#define PUT1(Type, Name, Argument)                                                \
  WAY(Name, DISPATCH_PROPERTYPUT, 2, nullptr,                                     \
      object.Set##Name(Given<Argument>(arguments[0]), Given<Type>(arguments[1])); \
      return {};)
#define PUT_STATE(Name)                                                                                 \
  WAY(Name, DISPATCH_PROPERTYPUT, 1, nullptr, object.Set##Name(Given<std::int32_t>(arguments[0]) != 0); \
      return {};)
#define PUT_AT_ONCE(Type, Name)                                   \
  WAY(Name, DISPATCH_PROPERTYPUT, 1, nullptr, CheckEditing(host); \
      object.Set##Name(Given<Type>(arguments[0])); return {};)
#define PROPERTY(Type, Name) GET(Type, Name) PUT(Type, Name)
#define CALL0(Type, Name) WAY(Name, DISPATCH_METHOD, 0, nullptr, ANSWERS(Type, object.Name()))
#define CALL1(Type, Name, Argument) \
  WAY(Name, DISPATCH_METHOD, 1, MEANT(Argument), ANSWERS(Type, object.Name(Given<Argument>(arguments[0]))))
#define CALL2(Type, Name, First, Second) \
  WAY(Name, DISPATCH_METHOD, 2, nullptr, \
      ANSWERS(Type, object.Name(Given<First>(arguments[0]), Given<Second>(arguments[1]))))
#define CALL4(Type, Name, First, Second, Third, Fourth)                                  \
  WAY(Name, DISPATCH_METHOD, 4, nullptr,                                                 \
      ANSWERS(Type, object.Name(Given<First>(arguments[0]), Given<Second>(arguments[1]), \
                                Given<Third>(arguments[2]), Given<Fourth>(arguments[3]))))
#define CALL5(Type, Name, First, Second, Third, Fourth, Fifth)                           \
  WAY(Name, DISPATCH_METHOD, 5, nullptr,                                                 \
      ANSWERS(Type, object.Name(Given<First>(arguments[0]), Given<Second>(arguments[1]), \
                                Given<Third>(arguments[2]), Given<Fourth>(arguments[3]), \
                                Given<Fifth>(arguments[4]))))
#define FIND0 CALL0
#define FIND1 CALL1
#define FIND2 CALL2

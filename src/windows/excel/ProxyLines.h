// Turns the lines of the tables in members/ into classes of proxies; members/README.md describes the lines.
// Source files include this header once, in the namespace plotsmith::proxies, after all other headers.

// clang-format off
#define CLASS(Class)                                \
  class Class##Proxy : public Proxy<excel::Class> { \
   public:                                          \
    using Proxy<excel::Class>::Proxy;
#define END_PARTLY(Class) };
// clang-format on

#define END(Class)                                        \
  END_PARTLY(Class)                                       \
  template <>                                             \
  Ref<excel::Class> Wrap(com::ComPtr<IDispatch> object) { \
    return MakeProxy<Class##Proxy>(std::move(object));    \
  }

#define GET(Type, Name)                   \
  Type Name() override {                  \
    static com::Member member(L"" #Name); \
    return Get<Type>(member);             \
  }
#define GET1(Type, Name, Argument)        \
  Type Name(Argument argument) override { \
    static com::Member member(L"" #Name); \
    return Get<Type>(member, argument);   \
  }
#define GET2(Type, Name, First, Second)            \
  Type Name(First first, Second second) override { \
    static com::Member member(L"" #Name);          \
    return Get<Type>(member, first, second);       \
  }
#define PUT(Type, Name)                        \
  void Set##Name(Taken<Type> value) override { \
    static com::Member member(L"" #Name);      \
    Put(member, value);                        \
  }
#define PUT1(Type, Name, Argument)                                \
  void Set##Name(Argument argument, Taken<Type> value) override { \
    static com::Member member(L"" #Name);                         \
    Put(member, argument, value);                                 \
  }
#define PUT_STATE(Name)                                \
  void Set##Name(bool value) override {                \
    static com::Member member(L"" #Name);              \
    Put(member, std::int32_t{value ? kTrue : kFalse}); \
  }
#define PUT_AT_ONCE(Type, Name)                                             \
  void Set##Name(Taken<Type> value) override {                              \
    static com::Member member(L"" #Name);                                   \
    com::Call(Object(), member, com::Kind::kPut, std::array{Passed(value)}, \
              value ? com::WhenBusy::kWait : com::WhenBusy::kFail);         \
  }
#define PROPERTY(Type, Name) GET(Type, Name) PUT(Type, Name)
#define FIND0(Type, Name)                 \
  Type Name() override {                  \
    static com::Member member(L"" #Name); \
    return Find<Type>(member);            \
  }
#define FIND1(Type, Name, Argument)       \
  Type Name(Argument argument) override { \
    static com::Member member(L"" #Name); \
    return Find<Type>(member, argument);  \
  }
#define FIND2(Type, Name, First, Second)           \
  Type Name(First first, Second second) override { \
    static com::Member member(L"" #Name);          \
    return Find<Type>(member, first, second);      \
  }
#define CALL0(Type, Name)                 \
  Type Name() override {                  \
    static com::Member member(L"" #Name); \
    return Method<Type>(member);          \
  }
#define CALL1(Type, Name, Argument)        \
  Type Name(Argument argument) override {  \
    static com::Member member(L"" #Name);  \
    return Method<Type>(member, argument); \
  }
#define CALL4(Type, Name, First, Second, Third, Fourth)                        \
  Type Name(First first, Second second, Third third, Fourth fourth) override { \
    static com::Member member(L"" #Name);                                      \
    return Method<Type>(member, first, second, third, fourth);                 \
  }
#define CALL5(Type, Name, First, Second, Third, Fourth, Fifth)                              \
  Type Name(First first, Second second, Third third, Fourth fourth, Fifth fifth) override { \
    static com::Member member(L"" #Name);                                                   \
    return Method<Type>(member, first, second, third, fourth, fifth);                       \
  }

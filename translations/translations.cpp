// The compiled translations are resources of this library; it has no code
// of its own beyond this unit, which a static library needs to exist.
namespace q4vantage_translations {
int anchor = 0;
}

package bridgetest;

/** Sets public fields of a Java value object by name, so a test builds a request in one line. */
final class Fields {
    private Fields() {}

    /** Sets each (name, value) pair on {@code object} and returns it. */
    static <T> T set(T object, Object... nameAndValue) {
        try {
            for (int k = 0; k < nameAndValue.length; k += 2) {
                String name = (String) nameAndValue[k];
                object.getClass().getField(name).set(object, nameAndValue[k + 1]);
            }
        } catch (ReflectiveOperationException e) {
            throw new AssertionError(e);
        }
        return object;
    }
}

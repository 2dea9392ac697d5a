package simctl;

import java.util.Arrays;

/** One call the stand-in library received, with its arguments under their C names. */
public final class RecordedCall {
    public final String fn;
    public final RecordedArg[] args;

    public RecordedCall(String fn, RecordedArg[] args) {
        this.fn = fn;
        this.args = args;
    }

    public RecordedArg arg(String name) {
        for (RecordedArg a : args) {
            if (a.name.equals(name)) {
                return a;
            }
        }
        throw new AssertionError(fn + " has no argument " + name + ": " + this);
    }

    @Override
    public String toString() {
        return fn + Arrays.toString(args);
    }
}

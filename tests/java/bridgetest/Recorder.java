package bridgetest;

import java.lang.reflect.InvocationHandler;
import java.lang.reflect.Method;
import java.lang.reflect.Proxy;
import java.util.ArrayList;
import java.util.List;

/**
 * A listener for any callback kind: a proxy of the kind's listener interface whose {@code invoke}
 * records its arguments and the thread it ran on.
 */
final class Recorder implements InvocationHandler {
    record Event(Object[] args, Thread thread) {}

    final List<Event> events = new ArrayList<>();

    /** A new listener object of the interface {@code com.zq.OrvexCore.<kind>}. */
    Object listener(String kind) {
        try {
            Class<?> iface = Class.forName("com.zq.OrvexCore." + kind);
            return Proxy.newProxyInstance(iface.getClassLoader(), new Class<?>[] {iface}, this);
        } catch (ClassNotFoundException e) {
            throw new AssertionError(e);
        }
    }

    @Override
    public synchronized Object invoke(Object proxy, Method method, Object[] args) {
        switch (method.getName()) {
            case "invoke":
                events.add(new Event(args, Thread.currentThread()));
                return null;
            case "hashCode":
                return System.identityHashCode(proxy);
            case "equals":
                return proxy == args[0];
            default:
                return "Recorder";
        }
    }

    synchronized List<Event> events() {
        return new ArrayList<>(events);
    }
}

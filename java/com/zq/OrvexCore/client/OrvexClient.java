package com.zq.OrvexCore.client;

import com.zq.OrvexCore.Config_Emap_Addr_Info_t;
import com.zq.OrvexCore.GetUserOrgInfo;
import com.zq.OrvexCore.IOrvexCore;
import com.zq.OrvexCore.Login_Info_t;
import com.zq.OrvexCore.ORVEX_UserInfo_t;
import com.zq.OrvexCore.Return_Value_Info_t;
import java.nio.charset.Charset;
import java.nio.charset.StandardCharsets;
import java.nio.file.Path;
import java.time.Duration;
import java.util.ArrayList;
import java.util.List;
import java.util.Objects;
import java.util.Set;
import java.util.concurrent.ConcurrentHashMap;
import java.util.concurrent.Executor;
import java.util.concurrent.ExecutorService;
import java.util.concurrent.Executors;
import java.util.concurrent.locks.ReentrantReadWriteLock;
import java.util.function.IntSupplier;
import java.util.function.ToIntFunction;

/**
 * One connection to the platform: a client instance of the library, logged in. Created by {@link
 * Builder#connect()}; {@link #close()} closes whatever is still open on it (streams, talks,
 * queries), logs out and destroys the instance.
 *
 * <p>Thread-safe: any thread may call any method, also concurrently. Every failed call throws
 * {@link OrvexException} with the library's result code; after {@link #close()} calls throw
 * {@link IllegalStateException}. Texts are {@code String}s in the {@linkplain #charset() charset}
 * given to the builder (UTF-8 unless told otherwise); an empty text where an identifier or a
 * message is required is refused with {@link IllegalArgumentException} before the library is
 * called.
 *
 * <p>The capabilities are grouped: {@link #catalogue()}, {@link #media()}, {@link #ptz(CameraId)},
 * {@link #alarms()}, {@link #events()}, {@link #devices()}, {@link #walls()}, {@link #burners()},
 * {@link #doors()} and {@link #services()}.
 */
public final class OrvexClient implements AutoCloseable {
    /** Default time-out of every call that takes one. */
    public static final Duration DEFAULT_TIMEOUT = Duration.ofSeconds(5);

    final int handle;
    final TextCodec text;
    final int timeoutMs;
    private final ReentrantReadWriteLock lifecycle = new ReentrantReadWriteLock();
    private final Set<AutoCloseable> open = ConcurrentHashMap.newKeySet();
    private final Executor eventExecutor;
    private final ExecutorService ownExecutor;
    private boolean closed;
    private final Events events;

    private OrvexClient(int handle, Builder b) {
        this.handle = handle;
        this.text = new TextCodec(b.charset);
        this.timeoutMs = millis(b.timeout);
        if (b.eventExecutor != null) {
            this.eventExecutor = b.eventExecutor;
            this.ownExecutor = null;
        } else {
            this.ownExecutor = Executors.newSingleThreadExecutor(r -> {
                Thread t = new Thread(r, "orvex-events-" + handle);
                t.setDaemon(true);
                return t;
            });
            this.eventExecutor = ownExecutor;
        }
        this.events = new Events(this);
    }

    /** A builder for a connection; nothing happens until {@link Builder#connect()}. */
    public static Builder builder() {
        return new Builder();
    }

    /** The settings of a connection. Host, user and password are required. */
    public static final class Builder {
        private String host;
        private int port = 9000;
        private String user;
        private String password;
        private int protocol = 2;
        private int loginType;
        private String checkCode = "";
        private Charset charset = StandardCharsets.UTF_8;
        private Duration timeout = DEFAULT_TIMEOUT;
        private Executor eventExecutor;
        private Path logFile;

        private Builder() {}

        /** The platform server's address (an IP address or a name the library resolves). */
        public Builder host(String host) {
            this.host = Objects.requireNonNull(host, "host");
            return this;
        }

        /** The platform server's port; 9000 unless set. */
        public Builder port(int port) {
            if (port < 0 || port > 65535) {
                throw new IllegalArgumentException("port out of range: " + port);
            }
            this.port = port;
            return this;
        }

        /** The user name. */
        public Builder user(String user) {
            this.user = Objects.requireNonNull(user, "user");
            return this;
        }

        /** The user's password. */
        public Builder password(String password) {
            this.password = Objects.requireNonNull(password, "password");
            return this;
        }

        /** The login protocol version, 1 or 2 (the default). */
        public Builder protocol(int protocol) {
            this.protocol = protocol;
            return this;
        }

        /** The login type the platform expects of this client (0 unless set). */
        public Builder loginType(int loginType) {
            this.loginType = loginType;
            return this;
        }

        /** The check code (a phone number on platforms that ask for one); empty unless set. */
        public Builder checkCode(String checkCode) {
            this.checkCode = Objects.requireNonNull(checkCode, "checkCode");
            return this;
        }

        /** The charset of every text this client sends and receives; UTF-8 unless set. */
        public Builder charset(Charset charset) {
            this.charset = Objects.requireNonNull(charset, "charset");
            return this;
        }

        /** The time-out of every call that takes one; {@link #DEFAULT_TIMEOUT} unless set. */
        public Builder timeout(Duration timeout) {
            millis(timeout);
            this.timeout = timeout;
            return this;
        }

        /**
         * Where listeners and frame consumers run unless their registration names an executor.
         * Unless set, the client runs them one after another on a thread of its own, which it ends
         * on {@link #close()}; an executor given here is the caller's to shut down.
         */
        public Builder eventExecutor(Executor executor) {
            this.eventExecutor = Objects.requireNonNull(executor, "executor");
            return this;
        }

        /** Switches the library's debug log to this file right after the instance is created. */
        public Builder logFile(Path file) {
            this.logFile = Objects.requireNonNull(file, "file");
            return this;
        }

        /**
         * Creates a client instance and logs in.
         *
         * @throws OrvexException if the instance cannot be created or the login fails (the
         *     instance is destroyed again)
         */
        public OrvexClient connect() {
            Objects.requireNonNull(host, "host is required");
            Objects.requireNonNull(user, "user is required");
            Objects.requireNonNull(password, "password is required");
            TextCodec codec = new TextCodec(charset);
            Login_Info_t login = new Login_Info_t();
            codec.put(host, login.szIp, "host");
            login.nPort = port;
            codec.put(user, login.szUsername, "user");
            codec.put(password, login.szPassword, "password");
            login.nProtocol = protocol;
            login.iType = loginType;
            codec.put(checkCode, login.szPhoneNum, "checkCode");
            byte[] log = logFile == null ? null : codec.arg(logFile.toString(), "logFile");

            Return_Value_Info_t h = new Return_Value_Info_t();
            Calls.check("ORVEX_Create", IOrvexCore.ORVEX_Create(1, h));
            int handle = h.nReturnValue;
            try {
                if (log != null) {
                    Calls.check("ORVEX_SetLog", IOrvexCore.ORVEX_SetLog(handle, log));
                }
                Calls.check("ORVEX_Login", IOrvexCore.ORVEX_Login(handle, login, millis(timeout)));
            } catch (RuntimeException e) {
                IOrvexCore.ORVEX_Destroy(handle);
                throw e;
            }
            return new OrvexClient(handle, this);
        }
    }

    static int millis(Duration d) {
        Objects.requireNonNull(d, "timeout");
        if (d.isNegative() || d.toMillis() > Integer.MAX_VALUE) {
            throw new IllegalArgumentException("time-out out of range: " + d);
        }
        return (int) d.toMillis();
    }

    // ---- the calls every part of the client makes ----------------------------------------

    /** Runs one native while the client is open and throws unless it returned 0. */
    void run(String operation, IntSupplier call) {
        lifecycle.readLock().lock();
        try {
            ensureOpen();
            Calls.check(operation, call.getAsInt());
        } finally {
            lifecycle.readLock().unlock();
        }
    }

    /** Throws unless the client is open. */
    void ensureOpen() {
        lifecycle.readLock().lock();
        try {
            if (closed) {
                throw new IllegalStateException("the client is closed");
            }
        } finally {
            lifecycle.readLock().unlock();
        }
    }

    /** Runs a native that returns one integer through a holder; the holder is read only on 0. */
    int value(String operation, ToIntFunction<Return_Value_Info_t> call) {
        Return_Value_Info_t h = new Return_Value_Info_t();
        run(operation, () -> call.applyAsInt(h));
        return h.nReturnValue;
    }

    /** A native that copies {@code length} bytes of a text into {@code buffer}. */
    @FunctionalInterface
    interface TextFetch {
        int fetch(byte[] buffer, int length);
    }

    /**
     * A text the library hands out after telling its length: fetched into a buffer of exactly
     * that length (the natives copy that many bytes, no terminator), up to its first zero byte.
     */
    String textOfLength(int length, String operation, TextFetch fetch) {
        if (length <= 0) {
            return "";
        }
        byte[] buffer = new byte[length];
        run(operation, () -> fetch.fetch(buffer, length));
        return text.get(buffer);
    }

    Executor eventExecutor() {
        return eventExecutor;
    }

    /** Keeps {@code resource} to be closed with the client. */
    void track(AutoCloseable resource) {
        open.add(resource);
    }

    void untrack(AutoCloseable resource) {
        open.remove(resource);
    }

    // ---- session ----------------------------------------------------------------------------

    /** The instance handle the library issued (for logs and for mixing with {@code IOrvexCore}). */
    public int handle() {
        return handle;
    }

    /** The charset of this client's texts. */
    public Charset charset() {
        return text.charset();
    }

    /** The time-out of the calls that take one. */
    public Duration timeout() {
        return Duration.ofMillis(timeoutMs);
    }

    /** The logged-in user's identifier. */
    public int userId() {
        return value("ORVEX_GetUserID", h -> IOrvexCore.ORVEX_GetUserID(handle, h));
    }

    /** The logged-in user's level. */
    public int userLevel() {
        return value("ORVEX_GetUserLevel", h -> IOrvexCore.ORVEX_GetUserLevel(handle, h));
    }

    /**
     * The logged-in user's account.
     *
     * @param id the user's identifier
     * @param level the user's level
     * @param mayOperate whether the user may operate devices
     * @param department the coding of the user's department
     * @param departmentName its name
     */
    public record UserInfo(int id, int level, boolean mayOperate, String department,
            String departmentName) {}

    /** Reads the logged-in user's account. */
    public UserInfo userInfo() {
        ORVEX_UserInfo_t u = new ORVEX_UserInfo_t();
        run("ORVEX_GetUserInfo", () -> IOrvexCore.ORVEX_GetUserInfo(handle, u, timeoutMs));
        return new UserInfo(u.iUserId, u.iUserLevel, u.iUserOperFlag, text.get(u.szCoding),
                text.get(u.szCodeName));
    }

    /**
     * The logged-in user's organisation, as the platform describes it (a text document). The
     * bridge hands this one text over as a Java string already, decoded as UTF-8 whatever this
     * client's charset.
     */
    public String userOrganisation() {
        GetUserOrgInfo o = new GetUserOrgInfo();
        run("ORVEX_GetUserOrgInfo", () -> IOrvexCore.ORVEX_GetUserOrgInfo(handle, o, timeoutMs));
        return o.strUserOrgInfo == null ? "" : o.strUserOrgInfo;
    }

    /**
     * Where the electronic map server listens.
     *
     * @param host its address
     * @param port its port
     */
    public record MapServer(String host, int port) {}

    /** Reads the electronic map server's address. */
    public MapServer mapServer() {
        Config_Emap_Addr_Info_t m = new Config_Emap_Addr_Info_t();
        run("ORVEX_GetMapAddrInfo", () -> IOrvexCore.ORVEX_GetMapAddrInfo(handle, m, timeoutMs));
        return new MapServer(text.get(m.szIP), m.nPort);
    }

    /** Changes the logged-in user's password. */
    public void changePassword(String oldPassword, String newPassword) {
        byte[] o = text.arg(oldPassword, "oldPassword");
        byte[] n = text.arg(newPassword, "newPassword");
        run("ORVEX_ChangeUserPassword",
                () -> IOrvexCore.ORVEX_ChangeUserPassword(handle, o, n, timeoutMs));
    }

    /** Switches the library's debug log to {@code file}. */
    public void logTo(Path file) {
        byte[] name = text.arg(file.toString(), "file");
        run("ORVEX_SetLog", () -> IOrvexCore.ORVEX_SetLog(handle, name));
    }

    /** Starts the library's monitor output to the named file or target. */
    public void startMonitor(String target) {
        byte[] name = text.arg(target, "target");
        run("ORVEX_StartMonitor", () -> IOrvexCore.ORVEX_StartMonitor(handle, name));
    }

    /** Chooses whether device information is fetched compressed. */
    public void compressDeviceInfo(boolean compressed) {
        run("ORVEX_SetCompressType",
                () -> IOrvexCore.ORVEX_SetCompressType(handle, compressed ? 1 : 0));
    }

    // ---- the parts ------------------------------------------------------------------------

    /** The organisation tree: departments, devices, channels, and the logical organisation. */
    public Catalogue catalogue() {
        return new Catalogue(this);
    }

    /** Live video, record search, playback, talk and broadcast. */
    public Media media() {
        return new Media(this);
    }

    /** Pan, tilt, zoom, switches and presets of one camera. */
    public Ptz ptz(CameraId camera) {
        return new Ptz(this, camera);
    }

    /** Alarm reception, history and schemes. */
    public Alarms alarms() {
        return new Alarms(this);
    }

    /** Listeners for the platform's events. */
    public Events events() {
        return events;
    }

    /** Device lists, states and alarm hosts. */
    public Devices devices() {
        return new Devices(this);
    }

    /** Video walls. */
    public Walls walls() {
        return new Walls(this);
    }

    /** Disc burners and the disks of recorders. */
    public Burners burners() {
        return new Burners(this);
    }

    /** Doors. */
    public Doors doors() {
        return new Doors(this);
    }

    /** JSON commands, messages, sharing, on-screen text, GPS, vehicle bays, people counting. */
    public Services services() {
        return new Services(this);
    }

    /**
     * Closes every stream, talk, broadcast and query still open on this client, logs out and
     * destroys the instance; then ends the client's own event thread. Calling it again does
     * nothing.
     *
     * @throws OrvexException if logging out fails (the instance is destroyed all the same)
     */
    @Override
    public void close() {
        List<RuntimeException> failures = new ArrayList<>();
        lifecycle.writeLock().lock();
        try {
            if (closed) {
                return;
            }
            for (AutoCloseable r : List.copyOf(open)) {
                try {
                    r.close();
                } catch (Exception e) {
                    failures.add(e instanceof RuntimeException re ? re : new RuntimeException(e));
                }
            }
            events.clear();
            int logout = IOrvexCore.ORVEX_Logout(handle, timeoutMs);
            IOrvexCore.ORVEX_Destroy(handle);
            closed = true;
            if (logout != 0) {
                failures.add(0, new OrvexException("ORVEX_Logout", logout));
            }
        } finally {
            lifecycle.writeLock().unlock();
            if (ownExecutor != null) {
                ownExecutor.shutdown();
            }
        }
        if (!failures.isEmpty()) {
            RuntimeException first = failures.get(0);
            failures.stream().skip(1).forEach(first::addSuppressed);
            throw first;
        }
    }
}

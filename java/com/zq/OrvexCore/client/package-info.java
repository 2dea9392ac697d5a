/**
 * A Java API to the surveillance platform on top of {@link com.zq.OrvexCore.IOrvexCore}: texts as
 * {@code String}s in a chosen charset, identifiers and records as value types, failures as
 * {@link com.zq.OrvexCore.client.OrvexException} carrying the library's result code, listeners as
 * lambdas on an executor, streams as {@link java.lang.AutoCloseable}s.
 *
 * <pre>{@code
 * try (OrvexClient client = OrvexClient.builder()
 *         .host("10.0.0.5").port(9000).user("operator").password(secret)
 *         .connect()) {
 *     DepartmentNode tree = client.catalogue().tree();
 *     Channel camera = tree.channels().findFirst().orElseThrow();
 *     client.events().onAlarm(alarm -> System.out.println(alarm.message()));
 *     try (LiveStream live = client.media().openLive(camera.id(),
 *             frame -> System.out.println(frame.size() + " bytes"))) {
 *         Thread.sleep(5_000);
 *     }
 * }
 * }</pre>
 *
 * <p>{@link com.zq.OrvexCore.client.OrvexClient} is the entry point; its methods lead to the
 * parts of the platform. Everything here is thread-safe. The process-wide "last result" of
 * {@code IOrvexCore} is never read: each call's own result decides, and text arguments that some
 * natives would answer with a stale result (empty texts) are refused with {@link
 * java.lang.IllegalArgumentException} before the library is called.
 */
package com.zq.OrvexCore.client;

package com.zq.OrvexCore;

/**
 * Registration or removal of a mobile phone for pushed alarm notifications.
 */
public class orvex_phone_subscribe_alarm_t {
    /** User identifier. */
    public int iUserId;
    /** Phone identifier (C string, 256 bytes). */
    public byte[] szPhoneId = new byte[256];
    /** Application identifier. */
    public int iAppId;
    /** Push service type (C string, 64 bytes). */
    public byte[] szPush_type = new byte[64];
    /** Non-zero subscribes, zero unsubscribes. */
    public int iIs_subscribe;
    /** Language of the notification texts (C string, 32 bytes). */
    public byte[] szLanguage = new byte[32];
    /** Time format of the notification texts (C string, 32 bytes). */
    public byte[] szTimefmt = new byte[32];
    /** Database operation code. */
    public int iDbOper;

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public orvex_phone_subscribe_alarm_t() {
    }
}

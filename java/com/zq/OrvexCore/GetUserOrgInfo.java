package com.zq.OrvexCore;

/**
 * Holder for the organisation description of the logged-in user, the one text that crosses as a
 * Java string.
 */
public class GetUserOrgInfo {
    /** The organisation text; {@code null} until a successful call fills it. */
    public String strUserOrgInfo;

    /** Creates an empty holder. */
    public GetUserOrgInfo() {
    }
}

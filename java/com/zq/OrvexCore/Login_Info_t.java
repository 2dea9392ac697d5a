package com.zq.OrvexCore;

/**
 * Login request: server address, credentials, protocol version and client type.
 */
public class Login_Info_t {
    /** Server address (C string, 48 bytes). */
    public byte[] szIp = new byte[48];
    /** Server port. */
    public int nPort;
    /** User name (C string, 64 bytes). */
    public byte[] szUsername = new byte[64];
    /** Password (C string, 64 bytes). */
    public byte[] szPassword = new byte[64];
    /** Protocol version (1 or 2). */
    public int nProtocol;
    /** Client type code. */
    public int iType;
    /** Phone number or check text sent with the login (C string, 48 bytes). */
    public byte[] szPhoneNum = new byte[48];

    /** Creates a record with every number zero and every text buffer allocated and zero-filled. */
    public Login_Info_t() {
    }
}

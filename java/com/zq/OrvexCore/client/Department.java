package com.zq.OrvexCore.client;

/**
 * A department (group) of the organisation tree.
 *
 * @param code its coding, by which every call addresses it
 * @param name its name
 */
public record Department(DepartmentCode code, String name) {}
